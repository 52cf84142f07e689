#include "frame/screens/fee_screen.h"

#include "frame/core/routes.h"
#include "platform/store/tables/fees.h"
#include "platform/text/number.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

/// The column that a box shows and the column that saving writes.
struct FeeBox {
  const char16_t* shown;
  const char16_t* saved;
};

// Kept: two boxes show another column than they save, which is one more reason why the button stays hidden.
constexpr FeeBox kBoxes[] = {
    {u"はり", u"はり"},
    {u"はり初回", u"はり初回"},
    {u"はり電療", u"はり電療"},
    {u"はり電療初回", u"はり電療初回"},
    {u"灸", u"灸"},
    {u"灸初回", u"灸初回"},
    {u"灸電療", u"灸電療"},
    {u"灸電療初回", u"灸電療初回"},
    {u"はり灸", u"はり灸"},
    {u"はり灸初回", u"はり灸初回"},
    {u"はり灸電療", u"はり灸電療"},
    {u"はり灸電療初回", u"はり灸電療初回"},
    {u"マッサージ1局所", u"マッサージ1局所"},
    {u"温罨法", u"温罨法"},
    {u"電気光線器具併用", u"電気光線器具併用"},
    {u"徒手矯正術", u"徒手矯正術"},
    {u"突発的な往療", u"往診料2Kまで"},
    {u"加算往診料2K", u"加算往診料2K"},
    {u"加算往診料4K", u"加算往診料4K"},
    {u"加算往診料6K", u"加算往診料6K"},
    {u"加算往診料8K", u"加算往診料8K"},
    {u"加算往診料10K", u"加算往診料10K"},
    {u"加算往診料12K", u"加算往診料12K"},
    {u"特別地域", u"加算往診料14K"},
    {u"加算往診料16K", u"加算往診料16K"},
};
constexpr int kBoxCount = static_cast<int>(std::size(kBoxes));
constexpr int kCheckedBoxes = 24;  // kept: the last box was never tested

constexpr Unbound kShown{u"shows one column and saves another"};

constexpr Row kRows[] = {
    Note{.name = {u"Label26"},
         .caption =
             u"※この表示は、2024年10月施術分以降のデータです。2024年10月施術分以前のデータは別の場所で格納し"
             u"てありますので、"
             u"2024年10月以前の申請書の施術費計算及び印刷は、そのデータを用いますのでご安心ください。"},
    Note{.name = {u"Label27"},
         .caption = u"※間違って入力してしまうと正しい計算と印刷ができなくなるため、Ver8."
                    u"80以降から料金の変更は、行えなくなり、"
                    u"料金データの確認だけとなります。最新のバージョンにＵＰすれば、すべて自動で正しく計算、"
                    u"印刷が出来ます。"
                    u"旧料金が表示された場合は、必ず最新バージョンへアップデートしてください。"},
    Note{
        .name = {u"Label28"}, .caption = u"音声の場合は、タブ移動で項目ごとに確認できます。", .spoken = true},
    Group{.name = {u"Frame1"}, .caption = u"料金", .columns = 4},
    TextField{
        .name = {u"Text1", 1}, .caption = u"はりor灸の1術", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 2}, .caption = u"はりor灸の1術初回", .bind = kShown, .width = 8, .readOnly = true},
    TextField{.name = {u"Text1", 3}, .caption = u"1術の電療", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 4}, .caption = u"はり電療初回", .bind = kShown, .width = 8, .readOnly = true},
    TextField{.name = {u"Text1", 5}, .caption = u"灸", .bind = kShown, .width = 8, .readOnly = true},
    TextField{.name = {u"Text1", 6}, .caption = u"灸初回", .bind = kShown, .width = 8, .readOnly = true},
    TextField{.name = {u"Text1", 7}, .caption = u"灸電療", .bind = kShown, .width = 8, .readOnly = true},
    TextField{.name = {u"Text1", 8}, .caption = u"灸電療初回", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 9}, .caption = u"はりと灸の2術", .bind = kShown, .width = 8, .readOnly = true},
    TextField{.name = {u"Text1", 10},
              .caption = u"はりと灸の2術りの初回",
              .bind = kShown,
              .width = 8,
              .readOnly = true},
    TextField{.name = {u"Text1", 11}, .caption = u"2術の電療", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 12}, .caption = u"はり灸電療初回", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 13}, .caption = u"マッサージ1局所", .bind = kShown, .width = 8, .readOnly = true},
    TextField{.name = {u"Text1", 14}, .caption = u"温罨法", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 15}, .caption = u"電気光線器具併用", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 16}, .caption = u"変形徒手矯正術", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 17}, .caption = u"突発的な往療", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 18}, .caption = u"加算往診料2K", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 19}, .caption = u"加算往診料4K", .bind = kShown, .width = 8, .readOnly = true},
    TextField{.name = {u"Text1", 20},
              .caption = u"訪問施術①（1人）+施術費",
              .bind = kShown,
              .width = 8,
              .readOnly = true},
    TextField{.name = {u"Text1", 21},
              .caption = u"訪問施術②（2人）+施術費",
              .bind = kShown,
              .width = 8,
              .readOnly = true},
    TextField{.name = {u"Text1", 22},
              .caption = u"訪問施術③（3人～9人）+施術費",
              .bind = kShown,
              .width = 8,
              .readOnly = true},
    TextField{.name = {u"Text1", 23},
              .caption = u"訪問施術③（10人以上）+施術費",
              .bind = kShown,
              .width = 8,
              .readOnly = true},
    TextField{
        .name = {u"Text1", 24}, .caption = u"特別地域加算", .bind = kShown, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text1", 25}, .caption = u"施術報告書交付料", .bind = kShown, .width = 8, .readOnly = true},
    EndGroup{},
    Bar{},
    Command{.name = {u"Command3"}, .caption = u"ここを音声で説明", .run = run<&FeeScreen::explain>},
    Command{.name = {u"Command1"}, .caption = u"上書き保存", .run = run<&FeeScreen::save>},
    Command{.name = {u"Command2"}, .caption = u"閉じる", .run = run<&FeeScreen::finish>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kDeclaration{.name = u"料金変更",
                                 .caption = u"料金確認",
                                 .rows = kRows,
                                 .sources = fees::table,
                                 .heading = u"料金確認"};

QString box(int number) { return u"Text1(%1)"_s.arg(number); }

}  // namespace

FeeScreen::FeeScreen(Services& services, RunState& run) : Screen(kDeclaration, services), m_run(run) {}

// The row with the highest ID rules.
void FeeScreen::onLoad() {
  setShown(u"Command1"_s, false);
  if (!source().open(m_run.folders[folder::kFees])) return;
  source().rows().moveLast();
  for (int i = 0; i < kBoxCount; ++i) {
    const QString value = source().rows().value(QString::fromUtf16(kBoxes[i].shown));
    setText(box(i + 1), value.isEmpty() ? QString() : QString::number(text::intOf(value)));
  }
}

void FeeScreen::explain() {
  voice().speakHeading({caption(u"Label26"_s), caption(u"Label27"_s), caption(u"Label28"_s)});
}

bool FeeScreen::checkBoxes() {
  for (int number = 1; number <= kCheckedBoxes; ++number) {
    const QString value = text(box(number));
    const bool digits =
        std::all_of(value.begin(), value.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!value.isEmpty() && digits) continue;
    messages().tell(caption(box(number)) +
                    (value.isEmpty() ? u"の料金が入力されていません"_s : u"の料金が正しくありません"_s));
    return false;
  }
  return true;
}

// Kept: all rows of the file take the values, not the newest alone.
void FeeScreen::save() {
  if (!source().isOpen()) return;
  if (!messages().ask(u"料金設定を上書き保存します"_s, Buttons::OkCancel, u"料金変更"_s)) return;
  if (!checkBoxes()) return;
  store::RecordSet& rows = source().rows();
  for (rows.moveFirst(); !rows.eof(); rows.moveNext()) {
    text::Done done = rows.edit();
    for (int i = 0; done && i < kBoxCount; ++i)
      done = rows.setValue(QString::fromUtf16(kBoxes[i].saved), text(box(i + 1)));
    if (done) done = rows.update();
    if (!done) return messages().tellDataFault(done.fault().message);
  }
  rows.moveLast();
  messages().tell(u"料金設定の変更が終了しました"_s);
}

void FeeScreen::finish() { navigator().unload(routes::Fees::screen); }

}  // namespace frame

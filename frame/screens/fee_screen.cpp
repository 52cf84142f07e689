#include "frame/screens/fee_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/store/tables/fees.h"
#include "platform/text/number.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

/// The column that a box shows and the column that saving writes.
struct FeeBox {
  store::Column shown;
  store::Column saved;
};

// Kept: two boxes show another column than they save, which is one more reason why the button stays hidden.
constexpr FeeBox kBoxes[] = {
    {fees::hari, fees::hari},
    {fees::hariFirst, fees::hariFirst},
    {fees::hariElectric, fees::hariElectric},
    {fees::hariElectricFirst, fees::hariElectricFirst},
    {fees::kyu, fees::kyu},
    {fees::kyuFirst, fees::kyuFirst},
    {fees::kyuElectric, fees::kyuElectric},
    {fees::kyuElectricFirst, fees::kyuElectricFirst},
    {fees::hariKyu, fees::hariKyu},
    {fees::hariKyuFirst, fees::hariKyuFirst},
    {fees::hariKyuElectric, fees::hariKyuElectric},
    {fees::hariKyuElectricFirst, fees::hariKyuElectricFirst},
    {fees::massageArea, fees::massageArea},
    {fees::warm, fees::warm},
    {fees::warmLight, fees::warmLight},
    {fees::limb, fees::limb},
    {fees::sudden, fees::base2K},
    {fees::add2K, fees::add2K},
    {fees::add4K, fees::add4K},
    {fees::add6K, fees::add6K},
    {fees::add8K, fees::add8K},
    {fees::add10K, fees::add10K},
    {fees::add12K, fees::add12K},
    {fees::specialArea, fees::add14K},
    {fees::add16K, fees::add16K},
};
constexpr int kBoxCount = static_cast<int>(std::size(kBoxes));
constexpr int kCheckedBoxes = 24;  // kept: the last box was never tested

constexpr Unbound kShown{u"shows one column and saves another"};

consteval TextField feeBox(int number, const char16_t* caption) {
  return TextField{
      .name = {u"Text1", number}, .caption = caption, .bind = kShown, .width = 8, .readOnly = true};
}

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
    feeBox(1, u"はりor灸の1術"),
    feeBox(2, u"はりor灸の1術初回"),
    feeBox(3, u"1術の電療"),
    feeBox(4, u"はり電療初回"),
    feeBox(5, u"灸"),
    feeBox(6, u"灸初回"),
    feeBox(7, u"灸電療"),
    feeBox(8, u"灸電療初回"),
    feeBox(9, u"はりと灸の2術"),
    feeBox(10, u"はりと灸の2術りの初回"),
    feeBox(11, u"2術の電療"),
    feeBox(12, u"はり灸電療初回"),
    feeBox(13, u"マッサージ1局所"),
    feeBox(14, u"温罨法"),
    feeBox(15, u"電気光線器具併用"),
    feeBox(16, u"変形徒手矯正術"),
    feeBox(17, u"突発的な往療"),
    feeBox(18, u"加算往診料2K"),
    feeBox(19, u"加算往診料4K"),
    feeBox(20, u"訪問施術①（1人）+施術費"),
    feeBox(21, u"訪問施術②（2人）+施術費"),
    feeBox(22, u"訪問施術③（3人～9人）+施術費"),
    feeBox(23, u"訪問施術③（10人以上）+施術費"),
    feeBox(24, u"特別地域加算"),
    feeBox(25, u"施術報告書交付料"),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command3"}, .caption = u"ここを音声で説明", .run = run<&FeeScreen::explain>},
    Command{.name = {u"Command1"}, .caption = u"上書き保存", .run = run<&FeeScreen::save>},
    Command{.name = {u"Command2"}, .caption = u"閉じる", .run = run<&FeeScreen::finish>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kDeclaration = declare({.name = routes::Fees::screen,
                                            .caption = u"料金確認",
                                            .rows = kRows,
                                            .sources = fees::table,
                                            .heading = u"料金確認"});

constexpr FamilyRef kBox = family(kRows, u"Text1");  // numbered from 1
constexpr ControlRef kSave = ref(kRows, u"Command1");
constexpr ControlRef kNotes[] = {ref(kRows, u"Label26"), ref(kRows, u"Label27"), ref(kRows, u"Label28")};

}  // namespace

FeeScreen::FeeScreen(Services& services, RunState& run) : Screen(kDeclaration, services), m_run(run) {}

// The row with the highest ID is in force.
void FeeScreen::onLoad() {
  setShown(kSave, false);
  if (!source().open(m_run.folders[folder::kFees])) return;
  if (!source().moveAndShow(&store::RecordSet::moveLast)) return;
  for (int i = 0; i < kBoxCount; ++i) {
    const QString value = source().rows().value(kBoxes[i].shown);
    setText(kBox[i + 1], value.isEmpty() ? QString() : QString::number(text::intOf(value)));
  }
}

void FeeScreen::explain() {
  QStringList notes;
  for (const ControlRef& note : kNotes) notes += caption(note);
  voice().speakHeading(notes);
}

bool FeeScreen::checkBoxes() {
  for (int number = 1; number <= kCheckedBoxes; ++number) {
    const QString value = text(kBox[number]);
    const bool digits =
        std::all_of(value.begin(), value.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!value.isEmpty() && digits) continue;
    messages().tell(caption(kBox[number]) +
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
    for (int i = 0; done && i < kBoxCount; ++i) done = rows.setValue(kBoxes[i].saved, text(kBox[i + 1]));
    if (done) done = rows.update();
    if (!done) return messages().tellDataFault(done.fault().message);
  }
  rows.moveLast();
  messages().tell(u"料金設定の変更が終了しました"_s);
}

void FeeScreen::finish() { navigator().unload(routes::Fees::screen); }

}  // namespace frame

#include "frame/screens/fee_screen.h"

#include <array>
#include <utility>

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/store/tables/fees.h"
#include "platform/text/number.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A box, the column that it shows and the column that saving writes.
struct FeeBox {
  constexpr FeeBox(const char16_t* text, store::Column column) : FeeBox(text, column, column) {}
  constexpr FeeBox(const char16_t* text, store::Column showing, store::Column saving)
      : caption(text), shown(showing), saved(saving) {}
  const char16_t* caption;
  store::Column shown;
  store::Column saved;
};

// Kept: two boxes show another column than they save, which is one more reason why the button stays hidden.
constexpr FeeBox kBoxes[] = {
    {u"はりor灸の1術", fees::hari},
    {u"はりor灸の1術初回", fees::hariFirst},
    {u"1術の電療", fees::hariElectric},
    {u"はり電療初回", fees::hariElectricFirst},
    {u"灸", fees::kyu},
    {u"灸初回", fees::kyuFirst},
    {u"灸電療", fees::kyuElectric},
    {u"灸電療初回", fees::kyuElectricFirst},
    {u"はりと灸の2術", fees::hariKyu},
    {u"はりと灸の2術りの初回", fees::hariKyuFirst},
    {u"2術の電療", fees::hariKyuElectric},
    {u"はり灸電療初回", fees::hariKyuElectricFirst},
    {u"マッサージ1局所", fees::massageArea},
    {u"温罨法", fees::warm},
    {u"電気光線器具併用", fees::warmLight},
    {u"変形徒手矯正術", fees::limb},
    {u"突発的な往療", fees::sudden, fees::base2K},
    {u"加算往診料2K", fees::add2K},
    {u"加算往診料4K", fees::add4K},
    {u"訪問施術①（1人）+施術費", fees::add6K},
    {u"訪問施術②（2人）+施術費", fees::add8K},
    {u"訪問施術③（3人～9人）+施術費", fees::add10K},
    {u"訪問施術③（10人以上）+施術費", fees::add12K},
    {u"特別地域加算", fees::specialArea, fees::add14K},
    {u"施術報告書交付料", fees::add16K},
};
constexpr int kBoxCount = static_cast<int>(std::size(kBoxes));
constexpr int kCheckedBoxes = 24;  // kept: the last box was never tested

constexpr Unbound kShown{u"shows one column and saves another"};

template <int Index>
consteval Row field() {
  return TextField{.name = {u"Text1", Index + 1},
                   .caption = kBoxes[Index].caption,
                   .bind = kShown,
                   .width = 8,
                   .readOnly = true};
}

template <int... Index>
consteval auto allRows(std::integer_sequence<int, Index...>) {
  return std::to_array<Row>({
      Note{
          .name = {u"Label26"},
          .caption =
              u"※この表示は、2024年10月施術分以降のデータです。2024年10月施術分以前のデータは別の場所で格納し"
              u"てありますので、"
              u"2024年10月以前の申請書の施術費計算及び印刷は、そのデータを用いますのでご安心ください。"},
      Note{.name = {u"Label27"},
           .caption =
               u"※間違って入力してしまうと正しい計算と印刷ができなくなるため、Ver8."
               u"80以降から料金の変更は、行えなくなり、"
               u"料金データの確認だけとなります。最新のバージョンにＵＰすれば、すべて自動で正しく計算、"
               u"印刷が出来ます。"
               u"旧料金が表示された場合は、必ず最新バージョンへアップデートしてください。"},
      Note{.name = {u"Label28"},
           .caption = u"音声の場合は、タブ移動で項目ごとに確認できます。",
           .spoken = true},
      Group{.name = {u"Frame1"}, .caption = u"料金", .columns = 4},
      field<Index>()...,
      EndGroup{},
      Bar{},
      Command{.name = {u"Command3"}, .caption = u"ここを音声で説明", .run = run<&FeeScreen::explain>},
      Command{.name = {u"Command1"}, .caption = u"上書き保存", .run = run<&FeeScreen::save>},
      Command{.name = {u"Command2"}, .caption = u"閉じる", .run = run<&FeeScreen::finish>, .key = u"Esc"},
      EndBar{},
  });
}

constexpr auto kRows = allRows(std::make_integer_sequence<int, kBoxCount>());

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

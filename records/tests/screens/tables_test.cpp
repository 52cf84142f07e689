#include <QtWidgets/QtWidgets>

#include "records/tests/screens/dictionary_fixture.h"
#include "records/tests/screens/visit_ledger_fixture.h"

// The tables that the screens are declared with: each field and each column of a grid shows the column that
// the file format names for it.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

/// A control, or the title of a grid's column, and the column of the file.
using Pairs = QList<std::pair<QString, QString>>;

QHash<QString, QString> valuesNamedAfter(const Pairs& pairs) {
  QHash<QString, QString> values;
  for (const auto& [shown, column] : pairs)
    if (column != u"ID") values[column] = u"値 "_s + column;
  return values;
}

void expectFields(const screen::Screen& screen, const Pairs& fields) {
  for (const auto& [control, column] : fields)
    EXPECT_EQ(screen.text(control), u"値 "_s + column) << control.toStdString();
}

/// The first row of the grid has these columns in this order.
void expectGrid(const screen::Screen& screen, const QString& grid, const Pairs& columns) {
  const auto* view = screen.findChild<QTableView*>(grid);
  ASSERT_NE(view, nullptr);
  const QAbstractItemModel& model = *view->model();
  ASSERT_EQ(model.columnCount(), columns.size());
  for (int i = 0; i < columns.size(); ++i) {
    const auto& [title, column] = columns[i];
    EXPECT_EQ(model.headerData(i, Qt::Horizontal).toString(), title);
    EXPECT_EQ(model.index(0, i).data().toString(), column == u"ID" ? u"1"_s : u"値 "_s + column)
        << title.toStdString();
  }
}

/// Grid columns that bear the names of their columns.
Pairs ownTitles(const QStringList& columns) {
  Pairs pairs;
  for (const QString& column : columns) pairs.append({column, column});
  return pairs;
}

class PatientTables : public test::RecordsFixture {};

TEST_F(PatientTables, PatientListShowsEachColumnUnderItsName) {
  const Pairs columns = ownTitles(
      u"氏名 ふりがな 患者ID カルテ番号 性別 生年月日 年齢 郵便番号 住所1 住所2 住所3 電話1 電話2 携帯 FAX 職業 "
      u"会社名 初診日 キーワード1 キーワード2 区分 紹介してくれた人 紹介した人 担当者 割付 既往症 症状 日付1 "
      u"テキスト1 テキスト2 テキスト3 ID"_s.split(u' '));
  addPatient(valuesNamedAfter(columns));
  expectGrid(shown(u"一覧表"), u"DBGrid1"_s, columns);
}

TEST_F(PatientTables, PatientTextsShowTheirColumns) {
  const Pairs fields{
      {u"txtFields(32)"_s, u"担当者"_s}, {u"txtFields(4)"_s, u"氏名"_s},  {u"txtFields(5)"_s, u"性別"_s},
      {u"txtF6"_s, u"生年月日"_s},       {u"txtFields(7)"_s, u"年齢"_s},  {u"txtF24"_s, u"初診日"_s},
      {u"txtFields(25)"_s, u"既往症"_s}, {u"txtFields(26)"_s, u"症状"_s}, {u"txtFields(27)"_s, u"治療"_s}};
  addPatient(valuesNamedAfter(fields));
  expectFields(shown(u"治療台帳2"), fields);
}

class AcupointTables : public test::DictionaryFixture {};

TEST_F(AcupointTables, AcupointsShowTheirColumns) {
  const Pairs columns = ownTitles(
      u"経絡コード 部位 経穴名漢字 経穴名かな 取穴位置 筋肉 運動神経 知覚神経 血管 刺入方法 主適応"_s.split(
          u' '));
  empty(u"Keiraku2000.mdb"_s, u"経穴"_s);
  store::RecordSet rows = open(u"Keiraku2000.mdb"_s, u"経穴"_s);
  ASSERT_TRUE(rows.addNew());
  const QHash<QString, QString> values = valuesNamedAfter(columns);
  for (auto value = values.cbegin(); value != values.cend(); ++value)
    ASSERT_TRUE(rows.setValue(value.key(), value.value()));
  ASSERT_TRUE(rows.update());
  const screen::Screen& screen = shown(u"frm経穴");
  expectGrid(screen, u"DBGrid1"_s, columns);
  expectFields(screen, {{u"txtFields(0)"_s, u"経穴名漢字"_s},
                        {u"txtFields(1)"_s, u"経穴名かな"_s},
                        {u"txtFields(2)"_s, u"取穴位置"_s},
                        {u"txtFields(3)"_s, u"筋肉"_s},
                        {u"txtFields(4)"_s, u"運動神経"_s},
                        {u"txtFields(5)"_s, u"知覚神経"_s},
                        {u"txtFields(6)"_s, u"血管"_s},
                        {u"txtFields(7)"_s, u"刺入方法"_s},
                        {u"txtFields(8)"_s, u"主適応"_s},
                        {u"txtFields(9)"_s, u"部位"_s}});
}

class LedgerTables : public test::VisitLedgerFixture {};

TEST_F(LedgerTables, VisitsShowTheirColumns) {
  const Pairs texts{{u"治療日"_s, u"治療日時"_s},
                    {u"治療概略"_s, u"治療概略"_s},
                    {u"保険者負担金"_s, u"保険者負担金"_s},
                    {u"一部負担金"_s, u"保険の一部負担金"_s},
                    {u"治療金額"_s, u"治療金額"_s}};
  const Pairs patient{{u"氏名"_s, u"氏名"_s}, {u"生年月日"_s, u"生年月日"_s}};
  QHash<QString, QString> values = valuesNamedAfter(texts + patient);
  values[u"治療日チェック"_s] = u"値 治療日チェック"_s;
  values[u"領収証チェック"_s] = u"-1"_s;
  addVisit(values);
  const screen::Screen& screen = open();
  expectFields(screen, {{u"txtFields(0)"_s, u"氏名"_s},
                        {u"txtFields(1)"_s, u"生年月日"_s},
                        {u"txtFields(2)"_s, u"治療日時"_s},
                        {u"txtFields(3)"_s, u"治療概略"_s},
                        {u"txtFields(4)"_s, u"保険者負担金"_s},
                        {u"txtFields(5)"_s, u"保険の一部負担金"_s},
                        {u"txtFields(6)"_s, u"治療金額"_s},
                        {u"Text10"_s, u"治療日チェック"_s}});
  EXPECT_EQ(screen.text(u"Text2"_s), u"P1"_s);
  EXPECT_EQ(screen.text(u"Text3"_s), u"1"_s);
  EXPECT_TRUE(screen.checked(u"chkFields(7)"_s));
  EXPECT_FALSE(screen.checked(u"chkFields(8)"_s));
  const QAbstractItemModel& list = *screen.findChild<QTableView*>(u"DBGrid1"_s)->model();
  QStringList titles;
  for (int i = 0; i < list.columnCount(); ++i) titles << list.headerData(i, Qt::Horizontal).toString();
  EXPECT_EQ(titles.join(u' '),
            u"治療日 治療概略 保険者負担金 一部負担金 治療金額 領収証チェック 新患 氏名 生年月日"_s);
  for (const auto& [title, column] : texts + patient)
    EXPECT_EQ(list.index(0, static_cast<int>(titles.indexOf(title))).data().toString(), u"値 "_s + column);
  EXPECT_NE(list.index(0, 5).data().toString(), list.index(0, 6).data().toString());
}

TEST_F(LedgerTables, EveryFieldOfAVisitTravelsToItsColumn) {
  const Pairs fields{{u"txtFields(0)"_s, u"氏名"_s},     {u"txtFields(1)"_s, u"生年月日"_s},
                     {u"txtFields(3)"_s, u"治療概略"_s}, {u"txtFields(4)"_s, u"保険者負担金"_s},
                     {u"txtFields(6)"_s, u"治療金額"_s}, {u"txtFields(5)"_s, u"保険の一部負担金"_s},
                     {u"txtFields(2)"_s, u"治療日時"_s}};
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  for (const auto& [control, column] : fields) ledger().setText(control, u"値 "_s + column);
  ledger().setChecked(u"chkFields(8)"_s, true);
  press(u"Men_FU");
  for (const auto& [control, column] : fields)
    EXPECT_EQ(visitsStored(column), QStringList{u"値 "_s + column});
  EXPECT_EQ(visitsStored(u"新患"_s), QStringList{u"-1"_s});
  EXPECT_EQ(visitsStored(u"領収証チェック"_s), QStringList{u"0"_s});
}

TEST_F(LedgerTables, AddedVisitsCanBeFilledInAndAnEmptyLedgerCannot) {
  open();
  for (int field = 0; field <= 6; ++field)
    EXPECT_FALSE(ledger().findChild<QWidget*>(u"txtFields(%1)"_s.arg(field))->isEnabled()) << field;
  for (int tick = 7; tick <= 8; ++tick)
    EXPECT_FALSE(ledger().findChild<QWidget*>(u"chkFields(%1)"_s.arg(tick))->isEnabled()) << tick;
  press(u"cmdAdd");
  for (int field = 0; field <= 6; ++field)
    EXPECT_TRUE(ledger().findChild<QWidget*>(u"txtFields(%1)"_s.arg(field))->isEnabled()) << field;
}

TEST_F(LedgerTables, TheDayGridShowsTheColumnsOfTheClaim) {
  const Pairs fields{{u"txtFields(20)"_s, u"被保険者との続柄"_s},
                     {u"txtFields(32)"_s, u"初療年月日"_s},
                     {u"Text8"_s, u"保険の種類"_s},
                     {u"Combo1"_s, u"一部負担金"_s},
                     {u"txtFields(67)"_s, u"施術内容"_s}};
  claims::ClaimRecord claim{
      valuesNamedAfter(fields + Pairs{{{}, u"請求区分"_s}, {{}, u"txtdummy27"_s}, {{}, u"txtdummy28"_s}}),
      {{u"番号1"_s, u"P1"_s}, {u"申請年月"_s, u"令和6年10月"_s}}};
  for (int day = 1; day <= 31; ++day) {
    claim.set(claim::dayCode[day], u"c%1"_s.arg(day));
    claim.set(claim::dayVisit[day], u"v%1"_s.arg(day));
  }
  ASSERT_TRUE(claims::ClaimFile::open(run.folders)->add(claim));
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  type(u"txtFields(115)", u"令和6年10月"_s);
  tickGrid();
  ASSERT_TRUE(ledger().isControlShown(u"Frame1"_s));
  expectFields(ledger(), fields);
  EXPECT_EQ(value(u"txtFields(114)"), u"令和6年10月"_s);
  for (int day = 1; day <= 31; ++day) {
    EXPECT_EQ(ledger().text(u"Text5(%1)"_s.arg(day - 1)), u"c%1"_s.arg(day));
    EXPECT_EQ(ledger().text(u"Text6(%1)"_s.arg(day - 1)), u"v%1"_s.arg(day));
  }
  expectGrid(ledger(), u"DBGrid3"_s,
             {{u"ID"_s, u"ID"_s},
              {u"施術報告書交付年月日"_s, u"txtdummy27"_s},
              {u"前回の施術報告書交付年月"_s, u"txtdummy28"_s}});
  const QAbstractItemModel& list = *ledger().findChild<QTableView*>(u"DBGrid2"_s)->model();
  QStringList cells;
  for (int i = 0; i < list.columnCount(); ++i)
    cells << list.headerData(i, Qt::Horizontal).toString() << list.index(0, i).data().toString();
  EXPECT_EQ(cells.join(u'|'),
            u"申請年月|令和6年10月|施術内容|値 施術内容|保険の種類|値 保険の種類|請求区分|値 請求区分|"
            u"初療年月日|値 初療年月日|ID|1"_s);
}

TEST_F(LedgerTables, EachTickOfTheDayGridTravelsToItsColumn) {
  const Pairs ticks{{u"chkFields(38)"_s, u"初回有無"_s},
                    {u"yn2"_s, u"yn2"_s},
                    {u"yn3"_s, u"yn3"_s},
                    {u"yn4"_s, u"yn4"_s},
                    {u"chkFields(39)"_s, u"d2"_s}};
  const qint64 id = addClaim(u"令和6年10月", u"あマ");
  addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
  open();
  type(u"txtFields(115)", u"令和6年10月"_s);
  tickGrid();
  QStringList expected;
  for (const auto& [control, column] : ticks) {
    ledger().setChecked(control, true);
    expected << column;
    tickGrid();  // hides the grid and writes
    QStringList stored;
    const claims::ClaimRecord now = claim(id);
    for (const auto& tick : ticks)
      if (now.ticked(tick.second)) stored << tick.second;
    EXPECT_EQ(stored, expected) << control.toStdString();
    tickGrid();
  }
}

}  // namespace
}  // namespace records

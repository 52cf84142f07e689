#include <QtWidgets/QtWidgets>

#include "records/tests/screens/visit_ledger_fixture.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString kNoClaim =
    u"レセプトデータがありません。新規でレセプトを制作するか、「翌月へ継続」で、今月のデータを作ってから"
    u"クリックして下さい。"_s;
const QString kWrongCode = u"治療内容が正しくありません。"_s;
const QString kWrongVisit = u"往療距離が正しくありません。"_s;
const QString kForm = u"frmレセプトフォーム"_s;

/// Stands in for the claim form and remembers every request.
class FormStandIn : public screen::ConfirmPrompt {
 public:
  FormStandIn(const screen::PromptActions& actions, screen::Services& services,
              QList<screen::Request>& requests)
      : ConfirmPrompt(kRow, actions, services), m_requests(requests) {}
  void opened(const screen::Request& request) override { m_requests << request; }

 private:
  static constexpr screen::PromptButton kButtons[] = {
      {.name = routes::ClaimForm::storeCommand, .caption = u"登録", .action = screen::kClosePrompt}};
  static constexpr screen::ConfirmRow kRow{
      .name = u"stand-in", .caption = u"stand-in", .lines = frame::test::kStandInLines, .buttons = kButtons};
  QList<screen::Request>& m_requests;
};

class VisitLedgerGrid : public test::VisitLedgerFixture {
 protected:
  void SetUp() override {
    VisitLedgerFixture::SetUp();
    addOn(u"令和6年6月1日"_s, u"2024/6/1"_s);
    registry.add(kForm, [this](screen::Services& all) {
      return std::make_unique<FormStandIn>(noActions, all, m_requests);
    });
  }
  /// Opens the grid on the month.
  void openGrid(const QString& month) {
    open();
    type(u"txtFields(115)", month);
    tickGrid();
  }
  bool isGridShown() const { return ledger().isControlShown(u"Frame1"_s); }
  /// Cells shown of a row.
  int cells(const QString& family) const {
    int shown = 0;
    for (int cell = 0; cell < 31; ++cell) shown += ledger().isControlShown(u"%1(%2)"_s.arg(family).arg(cell));
    return shown;
  }
  /// Types into a cell as a user does and leaves it by Tab; the control that has the focus then.
  QString enter(const char16_t* cell, const QString& text) {
    ledger().focusOn(QString::fromUtf16(cell));
    type(cell, QString());
    screen::testing::ScreenProbe probe(ledger(), channel);
    probe.type(text);
    probe.press(Qt::Key_Tab);
    return ledger().focused();
  }
  QList<screen::Request> m_requests;
};

// ---- Opening ----

TEST_F(VisitLedgerGrid, IsHiddenUntilTicked) {
  addClaim(u"令和6年6月", u"鍼灸", {{1, u"a"}, {31, u"e"}});
  open();
  EXPECT_FALSE(isGridShown());
  tickGrid();
  EXPECT_TRUE(isGridShown());
  EXPECT_EQ(value(u"txtFields(114)"), u"令和6年6月"_s);
  EXPECT_EQ(value(u"Text5(0)"), u"a"_s);
  EXPECT_EQ(value(u"Text5(30)"), u"e"_s);
  EXPECT_EQ(value(u"txtFields(20)"), u"本人"_s);
  EXPECT_EQ(value(u"Text8"), u"国保"_s);
  EXPECT_EQ(value(u"txtFields(67)"), u"鍼灸"_s);
  EXPECT_EQ(value(u"Combo1"), u"3割"_s);
  EXPECT_EQ(value(u"txtFields(32)"), u"令和6年9月2日"_s);
  tickGrid();
  EXPECT_FALSE(isGridShown());
  press(u"Men_DT");
  EXPECT_TRUE(isGridShown());
  EXPECT_TRUE(ledger().checked(u"Check1"_s));
  press(u"Men_DT");
  EXPECT_FALSE(isGridShown());
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(VisitLedgerGrid, WithoutAClaimItSaysSoAndStaysHidden) {
  const auto expectRefused = [&](const char* what) {
    EXPECT_EQ(told(), QStringList{kNoClaim}) << what;
    EXPECT_FALSE(isGridShown()) << what;
    EXPECT_FALSE(ledger().checked(u"Check1"_s)) << what;
  };
  openGrid(u"令和6年6月"_s);
  expectRefused("no claim at all");
  addClaim(u"令和6年5月", u"鍼灸");
  tickGrid();
  expectRefused("none of the month");
}

TEST_F(VisitLedgerGrid, ShowsTheClaimOfTheMonthAskedFor) {
  addClaim(u"令和6年5月", u"鍼灸", {{1, u"a"}});
  addClaim(u"令和6年11月", u"鍼灸", {{2, u"b"}});
  addClaim(u"令和6年1月", u"鍼灸", {{3, u"c"}});
  openGrid(u"令和6年1月"_s);
  EXPECT_EQ(value(u"txtFields(114)"), u"令和6年1月"_s);
  EXPECT_EQ(value(u"Text5(2)"), u"c"_s);
  EXPECT_EQ(ledger().source(3).rows().recordCount(), 1);
  type(u"txtFields(115)", QString());
  tickGrid();
  tickGrid();
  EXPECT_EQ(ledger().source(3).rows().recordCount(), 3) << "a blank month means all of the patient's";
}

TEST_F(VisitLedgerGrid, SecondHalfIsTheOneOfTheClaim) {
  addClaim(u"令和6年5月", u"鍼灸");
  const qint64 id = addClaim(u"令和6年6月", u"鍼灸");
  auto file = claims::ClaimFile::open(run.folders);
  claims::ClaimRecord changed;
  changed.set(claim::specialArea, u"1"_s);
  changed.set(claim::reportTwice, u"-1"_s);
  ASSERT_TRUE(file->store(id, claim(id), changed));
  openGrid(u"令和6年6月"_s);
  EXPECT_EQ(ledger().source(2).rows().value(u"ID"_s), QString::number(id));
  EXPECT_TRUE(ledger().checked(u"chkFields(39)"_s));
  EXPECT_TRUE(ledger().checked(u"yn3"_s));
  EXPECT_FALSE(ledger().checked(u"yn2"_s));
}

TEST_F(VisitLedgerGrid, AQuoteInTheMonthGivesTheDatabasesText) {
  addClaim(u"令和6年6月", u"鍼灸");
  openGrid(u"令和'6年6月"_s);
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_FALSE(isGridShown());
}

// ---- Days ----

TEST_F(VisitLedgerGrid, DaysAreThoseOfTheMonth) {
  const std::pair<const char16_t*, int> months[] = {
      {u"令和6年1月", 31},  {u"令和6年4月", 30},  {u"令和6年2月", 29}, {u"令和5年2月", 28},
      {u"令和82年2月", 29}, {u"令和元年6月", 30}, {u"令和6年12月", 31}};
  for (const auto& [month, days] : months) addClaim(month, u"鍼灸");
  open();
  for (const auto& [month, days] : months) {
    type(u"txtFields(115)", QString::fromUtf16(month));
    tickGrid();
    EXPECT_EQ(cells(u"Text5"_s), days) << QString::fromUtf16(month).toStdString();
    EXPECT_EQ(cells(u"Text6"_s), days) << QString::fromUtf16(month).toStdString();
    tickGrid();
  }
}

TEST_F(VisitLedgerGrid, SecondRowIsNamedByTheMonth) {
  addClaim(u"令和6年9月", u"あマ");
  addClaim(u"令和6年10月", u"あマ");
  open();
  const std::tuple<QString, QString, QString, QString> cases[] = {
      {u"令和6年9月"_s, u"往療距離"_s, u"5"_s, u"v1"_s},
      {u"令和6年10月"_s, u"往療人数"_s, u"v1"_s, u"5"_s},
      {u"令和6年9月"_s, u"往療距離"_s, u"20"_s, u"21"_s},
      {u"令和6年10月"_s, u"往療人数"_s, u"t"_s, u"v21"_s}};
  for (const auto& [month, row, good, bad] : cases) {
    type(u"txtFields(115)", month);
    tickGrid();
    EXPECT_EQ(label(u"Label9"), row);
    EXPECT_EQ(label(u"Label16"), row);
    EXPECT_EQ(label(u"Text6(3)"), u"4日 "_s + row);
    told();
    EXPECT_EQ(enter(u"Text6(0)", bad), u"Text6(0)"_s) << "the focus goes back";
    EXPECT_EQ(told(),
              QStringList{row == u"往療人数"
                              ? u"往療距離が正しくありません。「記入の仕方」をクリックし、ご確認ください。"_s
                              : kWrongVisit});
    EXPECT_EQ(enter(u"Text6(0)", good), u"Text6(1)"_s);
    EXPECT_TRUE(told().isEmpty());
    type(u"Text6(0)", QString());
    tickGrid();
  }
}

TEST_F(VisitLedgerGrid, CodesAreCheckedOnLeavingByTheKindOfTheClaim) {
  addClaim(u"令和6年10月", u"鍼灸");
  addClaim(u"令和6年9月", u"あマ");
  open();
  for (const auto& [month, good, bad] :
       {std::tuple(u"令和6年10月"_s, u"a"_s, u"g2"_s), std::tuple(u"令和6年9月"_s, u"g2h3"_s, u"f"_s)}) {
    type(u"txtFields(115)", month);
    tickGrid();
    told();
    EXPECT_EQ(enter(u"Text5(4)", bad), u"Text5(4)"_s);
    EXPECT_EQ(told(), QStringList{kWrongCode});
    EXPECT_EQ(value(u"Text5(4)"), bad) << "what was typed stays";
    EXPECT_EQ(enter(u"Text5(4)", good), u"Text5(5)"_s);
    EXPECT_TRUE(told().isEmpty());
    type(u"Text5(4)", QString());
    tickGrid();
  }
}

TEST_F(VisitLedgerGrid, ACellSaysItsDayItsRowAndItsValue) {
  addClaim(u"令和6年10月", u"あマ", {{7, u"g2"}});
  openGrid(u"令和6年10月"_s);
  ledger().focusOn(u"Text5(6)"_s);
  EXPECT_EQ(channel.lastSaid(), u"7日 治療内容"_s + QChar(254) + u"g2"_s);
  ledger().focusOn(u"Text6(6)"_s);
  EXPECT_EQ(channel.lastSaid(), u"7日 往療人数"_s + QChar(254));
}

// ---- 登録 ----

TEST_F(VisitLedgerGrid, FailedValidationStopsAndLeavesTheCells) {
  const qint64 id = addClaim(u"令和6年10月", u"あマ");
  openGrid(u"令和6年10月"_s);
  press(u"Command11");
  EXPECT_EQ(told(), QStringList{u"施術内容が記入されていません。"_s});
  type(u"Text5(0)", u"h2"_s);
  press(u"Command11");
  EXPECT_EQ(told(), QStringList{u"徒手矯正の単独では請求出来ません。記入の仕方をご覧ください。"_s});
  EXPECT_EQ(value(u"Text5(0)"), u"h2"_s);
  EXPECT_TRUE(claim(id).code(1).isEmpty());
  EXPECT_TRUE(m_requests.isEmpty());
}

TEST_F(VisitLedgerGrid, StoresBothHalvesAndInvitesToStoreOnTheForm) {
  const qint64 id = addClaim(u"令和6年10月", u"あマ");
  openGrid(u"令和6年10月"_s);
  type(u"Text5(0)", u"g2"_s);
  type(u"Text6(0)", u"v1"_s);
  type(u"txtFields(32)", u"令和6年10月1日"_s);
  ledger().setChecked(u"chkFields(39)"_s, true);
  ledger().setChecked(u"yn2"_s, true);
  answer({true});
  press(u"Command11");
  EXPECT_EQ(told(), QStringList{u"レセプトデータの登録を押してください。"_s});
  const claims::ClaimRecord stored = claim(id);
  EXPECT_EQ(stored.code(1), u"g2"_s);
  EXPECT_EQ(stored.visit(1), u"v1"_s);
  EXPECT_EQ(stored.get(claim::firstTreatment), u"令和6年10月1日"_s);
  EXPECT_EQ(stored.get(claim::specialArea), u"1"_s);
  EXPECT_TRUE(stored.ticked(claim::report));
  EXPECT_EQ(stored.get(claim::insurerName), u"架空市"_s) << "nothing else is touched";
  ASSERT_FALSE(m_requests.isEmpty());
  const auto* route = m_requests.first().as<routes::ClaimForm>();
  ASSERT_NE(route, nullptr);
  EXPECT_EQ(route->id, id);
  EXPECT_EQ(route->opener, routes::VisitLedger::screen);
  EXPECT_TRUE(navigator.isShown(kForm));
  EXPECT_TRUE(isGridShown());
}

TEST_F(VisitLedgerGrid, RefusedInvitationUnloadsTheForm) {
  const qint64 id = addClaim(u"令和6年10月", u"あマ", {{1, u"g2"}});
  openGrid(u"令和6年10月"_s);
  answer({false});
  press(u"Command11");
  EXPECT_EQ(navigator.loaded(kForm), nullptr);
  EXPECT_EQ(claim(id).code(1), u"g2"_s);
}

TEST_F(VisitLedgerGrid, AnOpenFormIsBroughtToTheFrontAndNothingIsStored) {
  const qint64 id = addClaim(u"令和6年10月", u"あマ");
  openGrid(u"令和6年10月"_s);
  type(u"Text5(0)", u"g2"_s);
  navigator.show(kForm);
  press(u"Command11");
  EXPECT_EQ(told(), QStringList{u"既にレセプトフォームは開かれています"_s});
  EXPECT_TRUE(claim(id).code(1).isEmpty());
  EXPECT_EQ(value(u"Text5(0)"), u"g2"_s);
}

TEST_F(VisitLedgerGrid, AMissingSecondHalfIsMade) {
  const qint64 id = addClaim(u"令和6年10月", u"あマ", {{1, u"g2"}});
  {
    auto rows =
        store::RecordSet::open(store::Database::open(path(u"保険申請2000_2.mdb"_s)).value(), u"保険申請"_s);
    ASSERT_TRUE(rows->remove());
  }
  openGrid(u"令和6年10月"_s);
  ledger().setChecked(u"yn4"_s, true);
  answer({true});
  press(u"Command11");
  EXPECT_EQ(claim(id).get(claim::periodFrom), QString::number(id));
  EXPECT_TRUE(claim(id).ticked(claim::reportThrice));
}

TEST_F(VisitLedgerGrid, AClaimThatChangedMeanwhileIsRefusedOnceAndTheCellsStay) {
  const qint64 id = addClaim(u"令和6年10月", u"あマ", {{1, u"g2"}});
  openGrid(u"令和6年10月"_s);
  type(u"Text5(4)", u"g1"_s);
  auto file = claims::ClaimFile::open(run.folders);
  claims::ClaimRecord other;
  other.set(claim::dayCode[9], u"g2"_s);
  ASSERT_TRUE(file->store(id, claim(id), other));
  press(u"Command11");
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_EQ(value(u"Text5(4)"), u"g1"_s);
  EXPECT_TRUE(claim(id).code(5).isEmpty());
  answer({true});
  press(u"Command11");
  EXPECT_EQ(claim(id).code(5), u"g1"_s);
  EXPECT_EQ(claim(id).code(9), u"g2"_s) << "the other computer's day is kept";
  EXPECT_EQ(value(u"Text5(8)"), u"g2"_s);
}

// ---- Leaving the claim ----

TEST_F(VisitLedgerGrid, TypedDaysAreStoredWhenTheGridIsLeft) {
  const qint64 id = addClaim(u"令和6年10月", u"あマ");
  openGrid(u"令和6年10月"_s);
  type(u"Text5(0)", u"g1"_s);
  ledger().setChecked(u"yn2"_s, true);
  tickGrid();
  EXPECT_FALSE(isGridShown());
  EXPECT_EQ(claim(id).code(1), u"g1"_s);
  EXPECT_TRUE(claim(id).ticked(claim::report));
  tickGrid();
  type(u"Text5(1)", u"g1"_s);
  press(u"cmdClose");
  EXPECT_EQ(claim(id).code(2), u"g1"_s);
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(VisitLedgerGrid, AnotherClaimOfTheListTakesItsOwnHalf) {
  const qint64 first = addClaim(u"令和6年10月", u"鍼灸", {{1, u"a"}});
  const qint64 second = addClaim(u"令和6年10月", u"あマ", {{1, u"g2"}});
  openGrid(u"令和6年10月"_s);
  EXPECT_EQ(ledger().source(3).rows().recordCount(), 2);
  type(u"Text5(1)", u"b"_s);
  ledger().source(3).moveNext();
  EXPECT_EQ(claim(first).code(2), u"b"_s);
  EXPECT_EQ(value(u"txtFields(67)"), u"あマ"_s);
  EXPECT_EQ(value(u"Text5(0)"), u"g2"_s);
  EXPECT_EQ(ledger().source(2).rows().value(u"ID"_s), QString::number(second));
}

TEST_F(VisitLedgerGrid, TheClaimIsReadAgainAfterTheFormStoredIt) {
  const qint64 id = addClaim(u"令和6年10月", u"あマ", {{1, u"g2"}});
  openGrid(u"令和6年10月"_s);
  auto file = claims::ClaimFile::open(run.folders);
  claims::ClaimRecord other;
  other.set(claim::subject, u"マ術"_s);
  other.set(claim::dayCode[2], u"g2"_s);
  ASSERT_TRUE(file->store(id, claim(id), other));
  navigator.show(kForm);
  screen::testing::ScreenProbe(*navigator.loaded(kForm), channel).open();
  navigator.unload(kForm);
  navigator.show(u"治療台帳3"_s);
  activate();
  EXPECT_EQ(value(u"Text5(1)"), u"g2"_s);
  type(u"Text5(2)", u"g2"_s);
  answer({true});
  press(u"Command11");
  EXPECT_EQ(claim(id).code(3), u"g2"_s);
}

TEST_F(VisitLedgerGrid, AMissingClaimFileIsReportedByName) {
  ASSERT_TRUE(QFile::remove(path(u"保険申請2000_2.mdb"_s)));
  openGrid(u"令和6年10月"_s);
  ASSERT_EQ(messages.texts().size(), 1);
  EXPECT_TRUE(lastMessage().contains(u"保険申請2000_2.mdb"_s));
  EXPECT_FALSE(isGridShown());
}

}  // namespace
}  // namespace records

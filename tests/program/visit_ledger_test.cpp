// The visit ledger beside the real claim form: the days of a claim go from one to the other and back.

#include "claims/core/claim_file.h"
#include "frame/core/routes.h"
#include "tests/program/program_fixture.h"

namespace program {
namespace {

using namespace Qt::StringLiterals;

class VisitLedgerHandOver : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    start();
    auto rows =
        store::RecordSet::open(store::Database::open(path(u"カルテ2データ2000.mdb"_s)).value(), u"カルテ"_s);
    ASSERT_TRUE(rows->addNew());
    for (const auto& [column, value] : {std::pair(u"氏名"_s, u"見本　太郎"_s), std::pair(u"ETC1"_s, u"P1"_s)})
      ASSERT_TRUE(rows->setValue(column, value));
    ASSERT_TRUE(rows->update());
    claims::ClaimRecord claim;
    for (const auto& [column, value] :
         {std::pair(u"番号1"_s, u"P1"_s), std::pair(u"氏名"_s, u"見本　太郎"_s),
          std::pair(u"申請年月"_s, u"令和6年10月"_s), std::pair(u"施術内容"_s, u"鍼灸"_s),
          std::pair(u"保険の種類"_s, u"国保"_s), std::pair(u"保険の種類3"_s, u"国民健保"_s),
          std::pair(u"保険者名称"_s, u"みほん市"_s), std::pair(u"初療年月日"_s, u"令和6年9月2日"_s),
          std::pair(u"一部負担金"_s, u"3割"_s)})
      claim.setNamed(column, value);
    m_id = file().add(claim).value();
    m_application->navigator().show(routes::VisitLedger{
        routes::VisitLedger::Of{.serial = u"P1"_s, .name = u"見本　太郎"_s, .birth = {}, .opener = {}}});
    fill(kLedger, u"txtFields(115)"_s, u"令和6年10月"_s);
    press(kLedger, u"Check1"_s);
    ASSERT_TRUE(screen(kLedger).isControlShown(u"Frame1"_s));
  }
  claims::ClaimFile file() const {
    return std::move(claims::ClaimFile::open(m_application->run().folders).value());
  }
  claims::ClaimRecord stored() const { return file().read(m_id).value(); }

  const QString kLedger = u"治療台帳3"_s;
  const QString kForm = u"frmレセプトフォーム"_s;
  qint64 m_id = 0;
};

TEST_F(VisitLedgerHandOver, OnlyTheFormsOwnStoreTurnsTheDaysIntoAmounts) {
  fill(kLedger, u"Text5(1)"_s, u"a"_s);
  fill(kLedger, u"Text5(4)"_s, u"a"_s);
  answer({true});
  press(kLedger, u"Command11"_s);
  EXPECT_EQ(told(), QStringList{u"レセプトデータの登録を押してください。"_s});
  ASSERT_TRUE(isOpen(kForm));
  EXPECT_EQ(screen(kForm).focused(), u"cmdUpdate"_s);
  EXPECT_EQ(screen(kForm).text(u"Text5(2)"_s), u"a"_s);
  EXPECT_EQ(screen(kForm).text(u"Text5(5)"_s), u"a"_s);
  EXPECT_EQ(stored().code(5), u"a"_s);
  EXPECT_TRUE(stored().get(claim::total).isEmpty()) << "the grid alone is no finished claim";

  answer({true});
  press(kForm, u"cmdUpdate"_s);
  // 1,610 yen on two days; three tenths are 966.
  EXPECT_EQ(stored().get(claim::total), u"3220"_s);
  EXPECT_EQ(stored().get(claim::share), u"966"_s);
  EXPECT_EQ(stored().get(claim::claimed), u"2254"_s);
  EXPECT_EQ(m_application->navigator().front(), &screen(kLedger));
}

TEST_F(VisitLedgerHandOver, ASecondRoundGoesOverTheClosedForm) {
  fill(kLedger, u"Text5(1)"_s, u"a"_s);
  answer({true, true});
  press(kLedger, u"Command11"_s);
  press(kForm, u"cmdUpdate"_s);
  told();
  fill(kLedger, u"Text5(4)"_s, u"a"_s);
  press(kLedger, u"Command11"_s);
  EXPECT_EQ(told(), QStringList{u"既にレセプトフォームは開かれています"_s});
  press(kForm, u"cmdClose"_s);
  EXPECT_EQ(m_application->navigator().loaded(kForm), nullptr);
  EXPECT_EQ(screen(kLedger).text(u"Text5(4)"_s), u"a"_s) << "what was typed waits";
  told();
  answer({true});
  press(kLedger, u"Command11"_s);
  EXPECT_EQ(told(), QStringList{u"レセプトデータの登録を押してください。"_s});
  EXPECT_EQ(screen(kForm).text(u"Text5(5)"_s), u"a"_s);
}

TEST_F(VisitLedgerHandOver, RefusedInvitationLeavesTheLedgerAlone) {
  fill(kLedger, u"Text5(1)"_s, u"a"_s);
  answer({false});
  press(kLedger, u"Command11"_s);
  EXPECT_EQ(m_application->navigator().loaded(kForm), nullptr);
  EXPECT_EQ(stored().code(2), u"a"_s);
  EXPECT_EQ(screen(kLedger).text(u"Text5(1)"_s), u"a"_s);
}

}  // namespace
}  // namespace program

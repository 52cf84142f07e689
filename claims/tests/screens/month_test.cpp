#include "claims/screens/month_screen.h"
#include "claims/tests/screens/claim_form_fixture.h"
#include "platform/screen/testing/screen_probe.h"

// 年月: which month is printed, and by which screen.

namespace claims {

namespace unbuilt = routes::unbuilt;

namespace {

class Month : public ClaimFormTest {
 protected:
  void SetUp() override {
    ClaimFormTest::SetUp();
    add(acupuncture());  // 令和6年10月
    m_month = std::make_unique<MonthScreen>(m_services, m_run, m_state);
    m_month->onLoad();
    m_month->show();
  }
  void print(int button, const char16_t* month = u"令和6年10月") {
    m_month->setText(qs(u"Text1"), qs(month));
    m_month->trigger(qs(u"Command1(%1)").arg(button));
  }
  std::unique_ptr<MonthScreen> m_month;
};

TEST_F(Month, IsReachableAndSaysWhatToWrite) {
  EXPECT_EQ(m_month->windowTitle(), qs(u"年月指定"));
  screen::testing::ScreenProbe probe(*m_month, m_channel);
  probe.open();
  EXPECT_EQ(probe.faults(), QStringList());
  EXPECT_EQ(m_month->openingTexts(),
            QStringList({qs(u"年月指定"), qs(u"レセプトデータを一括で印刷する月を入力してください。"),
                         qs(u"※記録されている申請年月で入力してください。")}));
  EXPECT_EQ(m_month->caption(qs(u"Text1")), qs(u"印刷する施術年月を入力してください"));
  EXPECT_EQ(m_month->chosen(qs(u"Frame1")), qs(u"従来用紙"));
}

TEST_F(Month, EachButtonHandsTheMonthToItsScreen) {
  const std::pair<const char16_t*, const char16_t*> wanted[] = {
      {u"年月印刷2024", u"鍼灸"}, {u"年月印刷2024", u"あマ"}, {u"年月印刷", u"鍼灸"}, {u"年月印刷", u"あマ"}};
  for (int button = 0; button < 4; ++button) {
    print(button);
    EXPECT_EQ(m_navigator.shows.last(), qs(wanted[button].first));
    const unbuilt::MonthRun run = button < 2
                                      ? unbuilt::MonthRun(m_navigator.lastRoute<unbuilt::MonthPrint2024>())
                                      : unbuilt::MonthRun(m_navigator.lastRoute<unbuilt::MonthPrint>());
    EXPECT_EQ(run.month, qs(u"令和6年10月"));
    EXPECT_EQ(run.kind, qs(wanted[button].second));
    EXPECT_FALSE(run.byArea);
    EXPECT_FALSE(run.withEra);
  }
  EXPECT_EQ(told(), QStringList());
}

TEST_F(Month, TicksAndPaperAreHandedOn) {
  m_month->setChecked(qs(u"Check1"), true);
  m_month->setChecked(qs(u"Check2"), true);
  m_month->choose(qs(u"Frame1"), qs(u"局所別計算用紙"));
  print(1);
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"年月印刷2018")));
  const auto run = m_navigator.lastRoute<unbuilt::MonthPrint2018>();
  EXPECT_TRUE(run.byArea);
  EXPECT_TRUE(run.withEra);
}

TEST_F(Month, TheAssociationHasItsOwnScreens) {
  m_run.prefectureCode = qs(u"23");
  m_run.aichiSubmission = qs(u"4");
  print(0);
  m_month->setChecked(qs(u"Check1"), true);
  print(0);
  m_run.aichiSubmission = qs(u"3");
  print(0);
  EXPECT_EQ(m_navigator.shows,
            QStringList({qs(u"年月印刷2024aimakai"), qs(u"年月印刷2018aimakai"), qs(u"年月印刷2018")}));
}

TEST_F(Month, AMonthThatNoClaimHasIsReportedAndStays) {
  for (const char16_t* month : {u"", u"10月", u"令和6年9月", u"令和6年１０月", u"令和6年10月'"}) {
    print(0, month);
    EXPECT_EQ(told(), QStringList(qs(u"年月が正しくありません。"))) << qs(month).toStdString();
    EXPECT_EQ(m_month->text(qs(u"Text1")), qs(month));
  }
  EXPECT_EQ(m_navigator.shows, QStringList());
  EXPECT_TRUE(m_month->isVisible());
}

TEST_F(Month, AMissingFileIsReportedByName) {
  ASSERT_TRUE(QFile::remove(path(qs(u"保険申請2000_1.mdb"))));
  print(0);
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].contains(qs(u"保険申請2000_1.mdb")));
  EXPECT_EQ(m_navigator.shows, QStringList());
}

TEST_F(Month, PrinterOptionsAndClose) {
  m_month->trigger(qs(u"Command2"));
  EXPECT_EQ(m_printing.setUpFor, m_month->winId());
  m_month->trigger(qs(u"Command3"));
  EXPECT_FALSE(m_month->isVisible());
}

}  // namespace
}  // namespace claims

#include "claims/screens/consent_extract_screen.h"
#include "claims/tests/screens/claim_list_fixture.h"
#include "platform/screen/testing/screen_probe.h"

// 抽出6: the claim list narrowed by the end of the consent.

namespace claims {
namespace {

class ConsentExtract : public ClaimListTest {
 protected:
  void SetUp() override {
    ClaimListTest::SetUp();
    for (const char16_t* end :
         {u"令和6年11月4日", u"令和6年11月5日", u"令和6年12月5日", u"令和7年1月1日", u""})
      addClaim({{u"要加療期間2", end}});
    openList();
    m_navigator.screens.insert(qs(u"レセプト一覧表"), m_list.get());
    m_dialog = std::make_unique<ConsentExtractScreen>(m_services);
    m_dialog->onLoad();
    m_dialog->show();
  }
  void extract(const char16_t* from, const char16_t* to = u"") {
    m_dialog->setText(qs(u"Text1"), qs(from));
    m_dialog->setText(qs(u"Text2"), qs(to));
    m_dialog->trigger(qs(u"Command1"));
  }
  bool stays() const { return m_dialog->isVisible(); }

  const QStringList m_all = {qs(u"5"), qs(u"4"), qs(u"3"), qs(u"2"), qs(u"1")};
  std::unique_ptr<ConsentExtractScreen> m_dialog;
};

TEST_F(ConsentExtract, IsReachableAndNamed) {
  EXPECT_EQ(m_dialog->windowTitle(), qs(u"同意一ｹ月以内の抽出"));
  screen::testing::ScreenProbe probe(*m_dialog, m_channel);
  probe.open();
  EXPECT_EQ(probe.faults(), QStringList());
  EXPECT_TRUE(m_dialog->openingTexts().contains(qs(u"抽出する,年月日を書き込んで下さい")));
}

TEST_F(ConsentExtract, FromTheFirstDateOn) {
  extract(u"令和6年11月5日");
  EXPECT_EQ(shown(), QStringList({qs(u"4"), qs(u"3"), qs(u"2")}));
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"レセプト一覧表")));
  EXPECT_TRUE(m_channel.said().contains(qs(u"抽出しました") + voice::kSpeechSeparator + qs(u"3件です。")));
  EXPECT_FALSE(stays());
}

TEST_F(ConsentExtract, UpToTheSecondDate) {
  extract(u"令和6年11月5日", u"令和6年12月5日");
  EXPECT_EQ(shown(), QStringList({qs(u"3"), qs(u"2")}));
}

TEST_F(ConsentExtract, DatesAreComparedByTheirNumbers) {
  for (const char16_t* end : {u"令和6年9月30日", u"令和6年10月1日"}) addClaim({{u"要加療期間2", end}});
  press(u"cmdRefresh");
  extract(u"令和6年10月1日", u"令和6年11月4日");
  EXPECT_EQ(shown(), QStringList({qs(u"7"), qs(u"1")})) << "9月 stands before 10月";
}

TEST_F(ConsentExtract, NoHitLeavesTheListAndTheDates) {
  extract(u"令和9年1月1日");
  EXPECT_EQ(m_messages.texts(), QStringList(qs(u"該当がありません。")));
  EXPECT_EQ(m_messages.titles(), QStringList(qs(u"Not found")));
  EXPECT_EQ(shown(), m_all);
  EXPECT_TRUE(stays());
  EXPECT_EQ(m_dialog->text(qs(u"Text1")), qs(u"令和9年1月1日"));
}

TEST_F(ConsentExtract, WithoutTheFirstDateItAsksForIt) {
  extract(u"", u"令和6年12月5日");
  EXPECT_EQ(told(), QStringList(qs(u"抽出する,年月日を書き込んで下さい")));
  EXPECT_EQ(shown(), m_all);
  EXPECT_TRUE(stays());
}

TEST_F(ConsentExtract, AQuoteGivesTheEnginesText) {
  extract(u"令和6年' or '1'='1");
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].startsWith(qs(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :")));
  EXPECT_EQ(shown(), m_all);
  EXPECT_TRUE(stays());
}

TEST_F(ConsentExtract, AnEmptyListSaysSo) {
  for (int i = 0; i < 5; ++i) {
    answer({true});
    press(u"cmdDelete");
  }
  told();
  extract(u"令和6年11月5日");
  EXPECT_EQ(told(), QStringList(qs(u"検索データが０件です。「全患者表示及び再表示」をクリックして下さい。")));
  EXPECT_TRUE(stays());
}

TEST_F(ConsentExtract, CancelChangesNothing) {
  m_dialog->setText(qs(u"Text1"), qs(u"令和6年11月5日"));
  m_dialog->trigger(qs(u"Command2"));
  EXPECT_EQ(shown(), m_all);
  EXPECT_FALSE(stays());
}

}  // namespace
}  // namespace claims

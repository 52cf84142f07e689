#include "claims/screens/share_screen.h"
#include "claims/tests/screens/claim_form_fixture.h"

// 計算式確認, the side calculator.

namespace claims {
namespace {

class ShareTest : public ClaimFormTest {
 protected:
  void SetUp() override {
    m_share = std::make_unique<ShareScreen>(m_services);
    m_share->onLoad();
  }
  /// A column of the table: 切り上げ Text2, 切り捨て Text3, 四捨五入 Text4.
  QStringList column(const char16_t* family) const {
    QStringList values;
    for (int i = 0; i < 6; ++i) values << m_share->text(QStringLiteral("%1(%2)").arg(qs(family)).arg(i));
    return values;
  }
  std::unique_ptr<ShareScreen> m_share;
};

QStringList texts(std::initializer_list<const char16_t*> list) {
  QStringList values;
  for (const char16_t* text : list) values << qs(text);
  return values;
}

// 4,945 times 0.1 to 0.9: 494.5, 989, 1,483.5, 3,461.5, 3,956, 4,450.5
TEST_F(ShareTest, TheTableOfABase) {
  m_share->setText(qs(u"Text1"), qs(u"4945"));
  m_share->trigger(qs(u"Command1"));
  EXPECT_EQ(column(u"Text2"), texts({u"495", u"989", u"1,484", u"3,462", u"3,956", u"4,451"}));
  EXPECT_EQ(column(u"Text3"), texts({u"494", u"989", u"1,483", u"3,461", u"3,956", u"4,450"}));
  EXPECT_EQ(column(u"Text4"), texts({u"495", u"989", u"1,484", u"3,462", u"3,956", u"4,451"}));
}

TEST_F(ShareTest, AFractionOfTheBaseIsDropped) {
  m_share->setText(qs(u"Text1"), qs(u"100.9"));
  m_share->trigger(qs(u"Command1"));
  EXPECT_EQ(column(u"Text2"), texts({u"10", u"20", u"30", u"70", u"80", u"90"}));
}

// 123 doubled is 246: 24.6, 49.2, 73.8, 172.2, 196.8, 221.4; doubled again 492: 49.2
TEST_F(ShareTest, TheBaseIsDoubledAndItsTableShown) {
  m_share->setText(qs(u"Text1"), qs(u"123"));
  m_share->trigger(qs(u"Command2"));
  EXPECT_EQ(m_share->text(qs(u"Text1")), qs(u"246"));
  EXPECT_EQ(column(u"Text2"), texts({u"25", u"50", u"74", u"173", u"197", u"222"}));
  EXPECT_EQ(column(u"Text3"), texts({u"24", u"49", u"73", u"172", u"196", u"221"}));
  EXPECT_EQ(column(u"Text4"), texts({u"25", u"49", u"74", u"172", u"197", u"221"}));
  EXPECT_EQ(m_channel.lastSaid(), qs(u"元数値:") + QString(voice::kSpeechSeparator) + qs(u"246"));
  m_share->trigger(qs(u"Command2"));
  EXPECT_EQ(m_share->text(qs(u"Text1")), qs(u"492"));
}

TEST_F(ShareTest, DoublingStaysWithinTwelveDigits) {
  m_share->setText(qs(u"Text1"), qs(u"1"));
  for (int i = 0; i < 60; ++i) m_share->trigger(qs(u"Command2"));
  EXPECT_EQ(m_share->text(qs(u"Text1")), qs(u"549755813888"));  // 2 to the power of 39
}

TEST_F(ShareTest, NoNumberIsNothing) {
  m_share->setText(qs(u"Text1"), qs(u"あ"));
  m_share->trigger(qs(u"Command1"));
  EXPECT_EQ(column(u"Text2"), texts({u"0", u"0", u"0", u"0", u"0", u"0"}));
}

}  // namespace
}  // namespace claims

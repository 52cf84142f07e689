#include "claims/screens/help_screens.h"

#include "claims/tests/screens/claim_form_fixture.h"

namespace claims {

namespace {

using HelpScreens = ClaimFormTest;

template <class Help>
QString helpText(screen::Services& services, frame::RunState& run, ClaimsState& state, QStringList& opening) {
  Help help(services, run, state);
  help.onLoad();
  opening = help.openingTexts();
  return help.text(qs(u"Text1"));
}

TEST_F(HelpScreens, EachExplainsTheEntriesOfItsMonths) {
  QStringList oldest, middle, newest;
  const QString text1 = helpText<FillingHelpScreen>(m_services, m_run, m_state, oldest);
  const QString text2 = helpText<FillingHelp2018Screen>(m_services, m_run, m_state, middle);
  const QString text3 = helpText<FillingHelp2024Screen>(m_services, m_run, m_state, newest);
  EXPECT_EQ(text1, oldest.join(u'\n'));
  for (const QString& text : {text1, text2, text3})
    EXPECT_TRUE(text.contains(qs(u"アルファベットは小文字で記入して下さい。")));
  EXPECT_TRUE(text1.contains(qs(u"往療距離が2km以内なら2、それ以降4、6、8、10、12で入力して下さい。")));
  EXPECT_TRUE(text2.contains(
      qs(u"往療距離が4kmまでの場合、1 ～ 4 の数字で入力して下さい。4kmを超える場合は、5 ～ 20 の"
         u"数字を入力してください。それ以外の数字または、文字は無効になります。")));
  for (const QString& text : {text2, text3})
    EXPECT_TRUE(
        text.contains(qs(u"「g3h3」と入力します。「h3g3」は不可。「g3」を先にして下さい（最大４文字まで）")));
  EXPECT_TRUE(text3.contains(qs(u"突発的な往療")));
  EXPECT_FALSE(text3.contains(qs(u"往療距離が4kmまで")));
}

TEST_F(HelpScreens, LinesAreHeardOneByOne) {
  FillingHelp2024Screen help(m_services, m_run, m_state);
  help.onLoad();
  const QStringList lines = help.openingTexts();
  m_channel.clear();
  for (const char16_t* button : {u"Command3", u"Command3", u"Command4", u"Command4"})
    help.trigger(qs(button));
  EXPECT_EQ(m_channel.said(), QStringList({lines[0], lines[1], lines[0], lines[0]}));
}

}  // namespace
}  // namespace claims

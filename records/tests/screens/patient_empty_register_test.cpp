#include "records/tests/screens/patient_screen_fixture.h"

// The patient screen over a register without patients, and without its file.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::PatientScreenTest;

TEST_F(PatientScreenTest, NothingToStoreIsOfferedAsAFirstPatientWhoTakesWhatWasTyped) {
  screen::Screen& screen = patients();
  screen.setText(u"txtFields(4)"_s, u"見本 一郎"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_TRUE(messages.texts().isEmpty()) << "not asked, not told as stored";
  EXPECT_FALSE(channel.said().contains(u"登録しました"_s));
  ASSERT_TRUE(isShown(u"無データ"));
  navigator.loaded(u"無データ"_s)->trigger(u"Command1"_s);
  EXPECT_EQ(name(screen), u"見本 一郎"_s);
  EXPECT_EQ(screen.text(u"Text2"_s), u"20240615001"_s);
  answer({true});
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"氏名"_s), QStringList{u"見本 一郎"_s});
  EXPECT_EQ(channel.lastSaid(), u"登録しました"_s);
}

TEST_F(PatientScreenTest, TypedFirstPatientLeavesOneEnteredMeanwhileAlone) {
  screen::Screen& screen = patients();
  screen.setText(u"txtFields(4)"_s, u"見本 一郎"_s);
  addPatient({{u"氏名"_s, u"例示 花子"_s}, {u"テキスト5"_s, u"20240615001"_s}});
  answer({true, true});
  screen.trigger(u"Men_FA"_s);
  screen.trigger(u"cmdUpdate"_s);
  EXPECT_EQ(stored(u"氏名"_s), (QStringList{u"例示 花子"_s, u"見本 一郎"_s}));
  EXPECT_EQ(stored(u"テキスト5"_s), (QStringList{u"20240615001"_s, u"20240615002"_s}));
}

TEST_F(PatientScreenTest, AnEmptyRegisterHasNobodyToOpenAScreenFor) {
  screen::Screen& screen = patients();
  screen.trigger(u"Command8"_s);  // today's date is on the screen
  for (const char16_t* room :
       {u"Command2", u"Command4", u"Command5", u"Command6", u"Command7", u"Men_RA", u"Men_YD"}) {
    screen.trigger(QString::fromUtf16(room));
    EXPECT_TRUE(isShown(u"無データ")) << QString::fromUtf16(room).toStdString();
    navigator.unload(u"無データ"_s);
  }
  EXPECT_TRUE(messages.texts().isEmpty()) << messages.texts().join(u'|').toStdString();
  channel.clear();
  screen.trigger(u"cmdDelete"_s);
  EXPECT_EQ(channel.lastSaid(), u"患者数:"_s + QChar(254) + u"0"_s);
}

TEST_F(PatientScreenTest, MissingFileIsReportedByNameAndNothingIsMade) {
  ASSERT_TRUE(QFile::remove(path(kFile)));
  patients();
  EXPECT_TRUE(lastMessage().startsWith(QString::fromUtf16(screen::kDataControlText)));
  EXPECT_TRUE(lastMessage().contains(kFile));
  EXPECT_FALSE(QFile::exists(path(kFile)));
}

}  // namespace
}  // namespace records

#include "records/tests/screens/patient_list_fixture.h"

// Labels of the patients on view.

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

class PatientLabelsTest : public test::PatientListFixture {
 protected:
  QStringList printedTexts() const {
    QStringList texts;
    for (const report::RecordedCall& call : engine.calls())
      if (call.name == u"PR_Output") texts << call.arguments[2].toString();
    return texts;
  }
};

TEST_F(PatientLabelsTest, AskedForAndRefused) {
  addNamed({u"見本"_s});
  answer({false});
  list().trigger(u"Command4"_s);
  EXPECT_EQ(lastMessage(),
            u"現在、表示の患者を全てタック印刷を行います。シートをプリンタにセットして下さい。"_s);
  EXPECT_TRUE(engine.calls().empty());
}

TEST_F(PatientLabelsTest, PrintsWhatIsOnViewInItsOrder) {
  addPatient({{u"氏名"_s, u"見本 一郎"_s}, {u"ふりがな"_s, u"ﾐ"_s}, {u"性別"_s, u"男"_s}});
  addPatient({{u"氏名"_s, u"例示 二子"_s}, {u"ふりがな"_s, u"ﾚ"_s}, {u"性別"_s, u"女"_s}});
  addPatient({{u"氏名"_s, u"架空 三郎"_s},
              {u"ふりがな"_s, u"ｶ"_s},
              {u"性別"_s, u"男"_s},
              {u"郵便番号"_s, u"100-0000"_s},
              {u"住所1"_s, u"架空市1"_s},
              {u"住所3"_s, u"見本方"_s}});
  extractSex(u"男"_s);
  sort(u"ふりがな"_s, u"Command1"_s);
  answer({true});
  list().trigger(u"Command4"_s);
  EXPECT_EQ(printedTexts(), (QStringList{u"〒100-0000"_s, u"架空市1"_s, u"見本方"_s, u"架空 三郎  様"_s,
                                         u"見本 一郎  様"_s}));
  const auto& calls = engine.calls();
  const auto start = std::ranges::find(calls, u"PR_StartDC"_s, &report::RecordedCall::name);
  ASSERT_NE(start, calls.end());
  EXPECT_EQ(start->arguments[2].toString(), u"タック印刷"_s);
  const auto font = std::ranges::find(calls, u"PR_SetFont"_s, &report::RecordedCall::name);
  ASSERT_NE(font, calls.end());
  EXPECT_EQ(font->arguments[0].toString(), u"ＭＳ 明朝"_s);
  EXPECT_EQ(channel.lastSaid(), u"タック印刷をしました"_s + kPart + u"2枚"_s);
}

TEST_F(PatientLabelsTest, ThirteenLabelsTakeTwoSheets) {
  QStringList thirteen;
  for (int i = 1; i <= 13; ++i) thirteen << u"見本 %1"_s.arg(i);
  addNamed(thirteen);
  answer({true});
  list().trigger(u"Command4"_s);
  EXPECT_EQ(engine.names().count(u"PR_EndPage"_s), 2);
  EXPECT_EQ(engine.names().last(), u"PR_EndDoc"_s);
  EXPECT_EQ(printedTexts().size(), 13);
  EXPECT_EQ(printedTexts().last(), u"見本 13  様"_s);
}

TEST_F(PatientLabelsTest, PrinterThatDoesNotStartIsReported) {
  addNamed({u"見本"_s});
  engine.startResult = report::kStartFailureAbove + 1;
  answer({true});
  list().trigger(u"Command4"_s);
  EXPECT_EQ(lastMessage(), u"タック印刷を開始できませんでした。プリンタを確認して下さい。"_s);
  EXPECT_TRUE(printedTexts().isEmpty());
}

}  // namespace
}  // namespace records

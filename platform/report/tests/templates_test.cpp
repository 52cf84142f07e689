// The templates of the project themselves.

#include <QDir>
#include <QRegularExpression>

#include "platform/report/form_check.h"
#include "platform/report/prp_item_line.h"
#include "platform/report/prp_loader.h"
#include "platform/report/tests/engine_fixture.h"

namespace report::testing {
namespace {

const QString kFolder = QStringLiteral(SOURCE_FOLDER "/templates");

class Templates : public ::testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    const auto form = loadForm(kFolder, QString::fromLatin1(GetParam()));
    ASSERT_TRUE(form.ok()) << form.fault().message.toStdString();
    m_form = form.value();
  }
  bool has(const QString& name) const { return m_form->find(name) >= 0; }
  const Item& item(const QString& name) const { return m_form->items[size_t(m_form->find(name))]; }

  FormPtr m_form;
};

TEST_P(Templates, areFreeOfFaults) { EXPECT_EQ(checkForm(*m_form), QStringList()); }

TEST_P(Templates, haveTheFamiliesOfTheMapping) {
  for (const char* family :
       {"Name0_1..8", "HokenNo_1..8", "KouhiFutan_1..8", "KouhiJyu_1..8", "kouza_num1..8", "day1..31",
        "wa1_1..5", "hutan1..5", "itibu1..3", "ouri1..3", "tkkubun1..2", "H_M_Circle1..3", "Kyuufu_1..2",
        "JUININ1..3", "Name21..26", "youkaryuki1..2"}) {
    const QStringList names = expandNames(family).value();
    for (const QString& name : names) EXPECT_TRUE(has(name)) << name.toStdString();
  }
  for (const char* name :
       {"Date",     "KikanCode", "KikanCode1", "KoukiCode",   "sejutuNO",   "Name2_1",      "Name2_2",
        "Name2_3",  "Zokugara",  "Name7",      "Name8",       "Name5_4",    "HHokenOtoko2", "HHokenOnna2",
        "Name9",    "Name9_1",   "Name9_2",    "sebasyo1",    "sebasyo2",   "sonota1",      "sonota2",
        "yuubin1",  "yuubin2",   "Name57",     "Name57_3",    "semeisyou1", "Name58",       "Name11",
        "Name56",   "Name11_2",  "Name11_3",   "Name14",      "Name47",     "Name471",      "siharai_kbn",
        "yokin2",   "kinyuu3",   "kinyuu6",    "kouza3",      "kouza4",     "Name5_3",      "Name5_5",
        "Name12",   "HHokenTel", "Name13",     "Name5_6",     "Name5_7",    "Name17",       "Name17_2",
        "Name18_1", "Name18_2",  "Name18_3",   "Name20",      "Text369",    "Name48",       "Name48_1",
        "Name48_2", "Name700",   "gyoumu1",    "gyoumu3",     "dai3_ta",    "dai3_ta1",     "seikyu2",
        "tenki4",   "Name16",    "betten1",    "HokenType_4", "HokenTypeT", "Shikai"})
    EXPECT_TRUE(has(QString::fromUtf8(name))) << name;
  for (const int date : {1, 2, 7, 9, 10, 11, 12, 13, 14, 15})
    for (const char* part : {"YY", "MM", "DD"})
      EXPECT_TRUE(has(part + QString::number(date))) << part << date;
}

TEST_P(Templates, eraStandsOverTheClaimMonthInTheREditionsOnly) {
  EXPECT_EQ(has("GG4"), QByteArray(GetParam()).contains("_R"));
}

TEST_P(Templates, marksReserveTheNumbersThatTheMappingTouches) {
  for (const auto& [name, text] : {std::pair("Text382", "登録記号番号"),
                                   {"Text67", "所在地"},
                                   {"Text573", "名　称"},
                                   {"Text66", "出張専門"},
                                   {"Text430", "８ 高外一"},
                                   {"Text432", "４ 六外"},
                                   {"Text433", "０ 高外７"}})
    EXPECT_EQ(item(name).text, QString::fromUtf8(text)) << name;
  EXPECT_TRUE(item("Text66").hidden);
  EXPECT_FALSE(item("Text67").hidden);
  for (const char* name :
       {"Text104", "Text106", "Text427", "Text591", "Text127", "Text128", "Line500", "Line501", "Line504"})
    EXPECT_FALSE(has(name)) << name;
}

TEST_P(Templates, allDataAreHiddenAndAllVariantsOfAPlaceShareIt) {
  for (const Item& each : m_form->items)
    EXPECT_TRUE(each.hidden || isFrameName(each.name)) << each.name.toStdString();
  for (const auto& [a, b] : {std::pair("Name9", "Name9_1"),
                             {"Name48", "Name48_2"},
                             {"KikanCode", "KoukiCode"},
                             {"Name0_1", "HokenNo_1"},
                             {"Name20", "Text369"},
                             {"Name57", "Name57_3"}}) {
    EXPECT_NEAR(item(a).rect.x, item(b).rect.x, 0.001) << a;
    EXPECT_NEAR(item(a).rect.y, item(b).rect.y, 0.001) << a;
    EXPECT_NEAR(item(a).rect.w, item(b).rect.w, 0.001) << a;
  }
}

TEST_P(Templates, onPreprintedPaperOnlyTheDataPrint) {
  if (!canReadPdf()) GTEST_SKIP() << "pdftotext is not installed";
  std::vector<MemorySink::Document> documents;
  ReportEngine engine(kFolder, [&](const PrinterChoice&) { return std::make_unique<MemorySink>(documents); });
  engine.PR_StartDC(0, 1, "x", kStartFlags);
  ASSERT_EQ(engine.PR_LoadReport(0, 0, QString::fromLatin1(GetParam())), 0);
  for (int n = 1; n <= 1000; ++n)
    for (const char* stem : {"waku_", "Box", "Line", "Text"})
      engine.PR_RepSetVisible(stem + QString::number(n), kHidden);
  engine.PR_RepSetVisible("Name8", kShown);
  engine.PR_RepSetText("Name8", QStringLiteral("見本太郎"));
  engine.PR_PlayReport();
  engine.PR_EndDoc();
  EXPECT_EQ(linesOf(documents.at(0).pdf), QStringList{QStringLiteral("見本太郎")});
}

INSTANTIATE_TEST_SUITE_P(ClaimForms, Templates,
                         ::testing::Values("HARI_900.PRP", "HARI_900_R.PRP", "Massage_900.PRP",
                                           "Massage_900_R.PRP"));

TEST(AmountBoxes, standAsTheRecordHasThem) {
  const auto acupuncture = loadForm(kFolder, "HARI_900.PRP").value();
  const auto massage = loadForm(kFolder, "Massage_900.PRP").value();
  const auto y = [](const FormPtr& form, int box) {
    return form->items[size_t(form->find("dain" + QString::number(box)))].rect.y;
  };
  // The unit fees of the two rows of 訪問施術料１ are crossed in the names: 13 stands above 10.
  EXPECT_LT(y(acupuncture, 13), y(acupuncture, 10));
  EXPECT_LT(y(acupuncture, 4), y(acupuncture, 7));
  for (int box = 51; box <= 65; ++box) EXPECT_GE(acupuncture->find("dain" + QString::number(box)), 0);
  for (int box = 71; box <= 85; ++box) EXPECT_GE(massage->find("dain" + QString::number(box)), 0);
  EXPECT_LT(y(acupuncture, 46), y(acupuncture, 47));
  EXPECT_LT(y(acupuncture, 47), y(acupuncture, 48));
  EXPECT_LT(y(massage, 58), y(massage, 59));
  EXPECT_LT(y(massage, 59), y(massage, 60));
}

}  // namespace
}  // namespace report::testing

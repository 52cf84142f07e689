#include "claims/core/insurance.h"
#include "claims/screens/claim_choice_screen.h"
#include "claims/screens/new_claim_screen.h"
#include "claims/tests/screens/claim_form_fixture.h"

// A new claim from the patient's screen: the question, the three choices, the rows in both files.

namespace claims {
namespace {

frame::Patient somePatient() {
  frame::Patient patient;
  patient.serial = qs(u"20240401001");
  patient.chartNumber = qs(u"K001");
  patient.name = qs(u"見本 太郎");
  patient.kana = qs(u"ﾐﾎﾝ ﾀﾛｳ");
  patient.sex = qs(u"男");
  patient.birth = qs(u"昭和28年3月5日");
  patient.zip = qs(u"000-0001");
  patient.address = qs(u"架空県みほん市");
  patient.address2 = qs(u"見本町１");
  patient.telephone = qs(u"00-0000-0001");
  return patient;
}
frame::Patient anotherPatient() {
  frame::Patient patient;
  patient.name = qs(u"例示 花子");
  return patient;
}
const char16_t* kPersonColumns[] = {u"フリガナ", u"氏名", u"生年月日", u"性別",
                                    u"郵便番号", u"住所", u"電話番号"};
const char16_t* kPersonValues[] = {u"ﾐﾎﾝ ﾀﾛｳ",     u"見本 太郎", u"昭和28年3月5日",
                                   u"男",          u"000-0001",  u"架空県みほん市見本町１",
                                   u"00-0000-0001"};

class NewClaimTest : public ClaimFormTest {
 protected:
  void ask() {
    m_question = std::make_unique<NewClaimScreen>(m_services, m_state);
    m_question->onLoad();
    m_question->opened(routes::NewClaim{somePatient()});
    m_question->show();
  }
  ClaimChoiceScreen& choice() {
    ask();
    m_choice = std::make_unique<ClaimChoiceScreen>(m_services, m_run, m_state);
    m_choice->onLoad();
    m_choice->opened({});
    m_choice->show();
    return *m_choice;
  }
  void expectPerson(const ClaimRecord& claim, const char16_t* person, bool filled) {
    for (size_t i = 0; i < std::size(kPersonColumns); ++i)
      EXPECT_EQ(claim.named(qs(person) + qs(kPersonColumns[i])), filled ? qs(kPersonValues[i]) : QString())
          << qs(person).toStdString() << qs(kPersonColumns[i]).toStdString();
  }
  qint64 newest() {
    return m_navigator.requests.isEmpty() ? 0 : m_navigator.lastRoute<routes::ClaimForm>().id;
  }
  std::unique_ptr<NewClaimScreen> m_question;
  std::unique_ptr<ClaimChoiceScreen> m_choice;
};

TEST_F(NewClaimTest, TheQuestionLeadsToTheChoices) {
  ask();
  EXPECT_EQ(m_question->windowTitle(), qs(u"新規レセプト作成"));
  EXPECT_TRUE(m_question->openingTexts().contains(qs(u"表示患者の新規のレセプトを作成します。")));
  m_question->trigger(qs(u"Command1"));
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"レセプト選択")));
  EXPECT_FALSE(m_question->isVisible());
  EXPECT_EQ(m_state.newClaim.name, qs(u"見本 太郎"));
}

TEST_F(NewClaimTest, NothingOfThePreviousPatientRemains) {
  ask();
  m_question->opened(routes::NewClaim{anotherPatient()});
  EXPECT_EQ(m_state.newClaim.name, qs(u"例示 花子"));
  EXPECT_TRUE(m_state.newClaim.address.isEmpty());
}

TEST_F(NewClaimTest, CancelMakesNothing) {
  ask();
  m_question->trigger(qs(u"Command2"));
  EXPECT_TRUE(m_navigator.shows.isEmpty());
  choice().trigger(qs(u"Command2"));
  EXPECT_TRUE(m_navigator.shows.isEmpty());
  EXPECT_FALSE(m_choice->isVisible());
  EXPECT_FALSE(file().read(1).value().has(claim::id));
}

struct InsuranceCase {
  const char16_t* kind;
  const char16_t* order;
  const char16_t* ofInsured;  ///< summary code
  const char16_t* ofFamily;
};
const InsuranceCase kInsurances[] = {{u"全国健康保険協会", u"3", u"111", u"222"},
                                     {u"共済", u"1", u"11", u"22"},
                                     {u"組合", u"2", u"11", u"22"},
                                     {u"国保", u"4", u"1", u"2"},
                                     {u"退職国保", u"5", u"1", u"2"},
                                     {u"特別国保", u"6", u"1", u"2"},
                                     {u"後期高齢", u"7", u"1", u"1"}};
const std::pair<const char16_t*, const char16_t*> kTreatments[] = {{u"鍼灸治療", u"鍼灸"},
                                                                   {u"マッサージ治療", u"あマ"}};
const char16_t* kHolders[] = {u"保険証の本人", u"保険証の家族", u"世帯主でない本人"};

class NewClaimChoices : public NewClaimTest, public testing::WithParamInterface<std::tuple<int, int, int>> {
 protected:
  /// Sets the option button of this caption.
  void pick(const QString& caption) {
    for (QRadioButton* button : m_choice->findChildren<QRadioButton*>())
      if (button->text() == caption) return button->click();
    FAIL() << "no option " << caption.toStdString();
  }
};

TEST_P(NewClaimChoices, WriteTheirColumns) {
  const auto [insurance, treatment, holder] = GetParam();
  const InsuranceCase& row = kInsurances[insurance];
  choice();
  pick(qs(row.kind));
  pick(qs(kTreatments[treatment].first));
  pick(qs(kHolders[holder]));
  m_choice->trigger(qs(u"Command1"));
  ASSERT_EQ(m_navigator.shows, QStringList(qs(u"frmレセプトフォーム")));
  EXPECT_FALSE(m_choice->isVisible());

  const ClaimRecord claim = stored(newest());
  const bool family = holder == 1;
  EXPECT_EQ(claim.named(qs(u"保険の種類")), qs(row.kind));
  EXPECT_EQ(claim.named(qs(u"保険順位")), qs(row.order));
  EXPECT_EQ(claim.get(claim::summaryCode), qs(family ? row.ofFamily : row.ofInsured));
  EXPECT_EQ(claim.named(qs(u"施術内容")), qs(kTreatments[treatment].second));
  EXPECT_EQ(claim.named(qs(u"被保険者との続柄")), family ? QString() : qs(u"本人"));
  EXPECT_EQ(claim.ticked(claim::notHead), holder == 2) << "世帯主でない本人";
  expectPerson(claim, u"被保険者の", !family);
  expectPerson(claim, u"療養を受ける者の", true);
  const std::pair<const char16_t*, const char16_t*> fixed[] = {
      {u"カルテ番号", u"K001"},         {u"番号1", u"20240401001"},     {u"氏名", u"見本 太郎"},
      {u"生年月日", u"昭和28年3月5日"}, {u"業務上外のもの", u"その他"}, {u"第三者行為によるもの", u"いいえ"},
      {u"入院入院外の別", u"入院外"},   {u"申請年月", nullptr}};
  for (const auto& [column, value] : fixed)
    EXPECT_EQ(claim.named(qs(column)), value ? qs(value) : QString()) << qs(column).toStdString();
}
INSTANTIATE_TEST_SUITE_P(All, NewClaimChoices,
                         testing::Combine(testing::Range(0, 7), testing::Range(0, 2), testing::Range(0, 3)));

TEST_F(NewClaimTest, ThePractitionersDataOfTheDayAreCopied) {
  m_run.profile[frame::slot::kPractitioner] = qs(u"見本 施術");
  m_run.profile[frame::slot::kClinicName] = qs(u"見本治療院");
  choice();
  m_choice->choose(qs(u"Frame1"), qs(u"国保"));
  m_choice->choose(qs(u"Frame2"), qs(u"鍼灸"));
  m_choice->choose(qs(u"Frame3"), qs(u"本人"));
  m_choice->trigger(qs(u"Command1"));
  const ClaimRecord claim = stored(newest());
  EXPECT_EQ(claim.named(qs(u"施術者氏名")), qs(u"見本 施術"));
  EXPECT_EQ(claim.named(qs(u"施術所の名称")), qs(u"見本治療院"));
}

TEST_F(NewClaimTest, EveryGroupMustBeAnswered) {
  const std::pair<const char16_t*, const char16_t*> answers[] = {
      {u"Frame1", u"国保"}, {u"Frame2", u"鍼灸"}, {u"Frame3", u"本人"}};
  for (size_t missing = 0; missing < std::size(answers); ++missing) {
    choice();
    QApplication::setActiveWindow(m_choice.get());
    for (size_t i = 0; i < std::size(answers); ++i)
      if (i != missing) m_choice->choose(qs(answers[i].first), qs(answers[i].second));
    m_choice->trigger(qs(u"Command1"));
    EXPECT_EQ(told(), QStringList(qs(u"各ラジオボタンからそれぞれ選択してください。")));
    EXPECT_TRUE(m_navigator.shows.isEmpty());
    EXPECT_TRUE(m_choice->isVisible());
    EXPECT_EQ(m_choice->focused(), qs(answers[missing].first)) << "what is missing";
  }
}

TEST_F(NewClaimTest, AFileThatCannotBeWrittenIsReported) {
  choice();
  for (const auto& [group, value] :
       {std::pair{u"Frame1", u"国保"}, {u"Frame2", u"鍼灸"}, {u"Frame3", u"本人"}})
    m_choice->choose(qs(group), qs(value));
  ASSERT_TRUE(QFile::remove(path(qs(u"保険申請2000_2.mdb"))));
  m_choice->trigger(qs(u"Command1"));
  ASSERT_EQ(told().size(), 1);
  EXPECT_TRUE(m_navigator.shows.isEmpty());
  EXPECT_TRUE(m_choice->isVisible()) << "the answers are not lost";
}

}  // namespace
}  // namespace claims

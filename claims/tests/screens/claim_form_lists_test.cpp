// The lists of the claim form that come from the registers.

#include "claims/tests/screens/register_fixture.h"

namespace claims {
namespace {

class ClaimFormListsTest : public RegisterTest {
 protected:
  QString shown(const char16_t* column) const { return m_form->record().named(qs(column)); }
  /// The arrow key in a list of the form, as a user chooses.
  void arrow(int list, Qt::Key key = Qt::Key_Down) {
    QTest::keyClick(m_form->findChild<QComboBox*>(QStringLiteral("Combo1(%1)").arg(list)), key);
  }
  QStringList doctorShown() const {
    return {shown(u"同意医師氏名"), shown(u"同意医師フリガナ"), shown(u"医療機関名"), shown(u"同意医師住所"),
            shown(u"同意医師の電話番号")};
  }
};

TEST_F(ClaimFormListsTest, ADoctorBringsTheSiblings) {
  add(kDoctorRegister, kDoctor);
  openNew(acupuncture());
  EXPECT_EQ(m_form->items(qs(u"Combo1(24)")), QStringList(kDoctor[0]));
  EXPECT_EQ(m_form->items(qs(u"Combo1(25)")), QStringList(kDoctor[2]));
  choose(qs(u"Combo1(24)"), kDoctor[0]);
  EXPECT_EQ(doctorShown(), kDoctor);
}

TEST_F(ClaimFormListsTest, TwoDoctorsOfOneNameBringTheirOwn) {
  const QStringList third{qs(u"架空 医師"), qs(u"ｶｸｳ ｲｼ"), qs(u"見本医院"), qs(u"見本町3"), qs(u"000-0003")};
  for (const QStringList& doctor : {kDoctor, kNamesake, third}) add(kDoctorRegister, doctor);
  openNew(acupuncture());
  for (const QStringList& doctor : {kDoctor, kNamesake, third}) {
    arrow(24);
    EXPECT_EQ(doctorShown(), doctor);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_channel.heardWhole(), QStringList({doctor[0], doctor.mid(1).join(voice::kSpeechSeparator)}))
        << "told apart by ear";
  }
  arrow(24, Qt::Key_Up);
  EXPECT_EQ(doctorShown(), kNamesake);
}

TEST_F(ClaimFormListsTest, InsurersOfOneNameAreWalkedThrough) {
  const QList<QStringList> rows{{qs(u"架空組合"), qs(u"111"), qs(u"架空市1")},
                                {qs(u"架空組合"), qs(u"222"), qs(u"架空市2")},
                                {qs(u"例示組合"), qs(u"333"), qs(u"例示市3")}};
  for (const QStringList& row : rows) add(kInsurerRegister, row);
  openNew(acupuncture());
  for (const QStringList& row : rows) {
    arrow(3);
    EXPECT_EQ(QStringList({shown(u"保険者名称"), shown(u"保険者番号"), shown(u"保険者住所")}), row);
  }
}

TEST_F(ClaimFormListsTest, ANumberBringsNameAndPlace) {
  add(kInsurerRegister, kInsurer);
  add(kInsurerRegister, {qs(u"例示市"), qs(u"222222"), qs(u"例示市2")});
  openNew(acupuncture());
  choose(qs(u"Combo1(4)"), qs(u"222222"));
  EXPECT_EQ(shown(u"保険者名称"), qs(u"例示市"));
  EXPECT_EQ(shown(u"保険者住所"), qs(u"例示市2"));
  EXPECT_EQ(m_form->items(qs(u"Combo1(5)")), QStringList({kInsurer[2], qs(u"例示市2")}));
}

TEST_F(ClaimFormListsTest, ATypedNameThatTheRegisterLacksBringsNothing) {
  add(kDoctorRegister, kDoctor);
  openNew(acupuncture());
  choose(qs(u"Combo1(24)"), kDoctor[0]);
  choose(qs(u"Combo1(24)"), qs(u"見本 先生"));
  EXPECT_EQ(shown(u"同意医師氏名"), qs(u"見本 先生"));
  EXPECT_EQ(shown(u"医療機関名"), kDoctor[2]) << "what stands beside it stays";
}

TEST_F(ClaimFormListsTest, EmptyRegistersSaySoAndBringNothing) {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"同意医師住所"), qs(u"架空市9"));
  openNew(claim);
  const std::pair<int, const char16_t*> sentences[] = {{24, u"同意医師のデータがありません"},
                                                       {25, u"同意医師のデータがありません"},
                                                       {3, u"名称のデータがありません"},
                                                       {4, u"番号のデータがありません"}};
  for (const auto& [list, sentence] : sentences)
    EXPECT_EQ(m_form->items(QStringLiteral("Combo1(%1)").arg(list)), QStringList(qs(sentence)));
  arrow(24);
  EXPECT_EQ(shown(u"同意医師住所"), qs(u"架空市9"));
}

TEST_F(ClaimFormListsTest, ANewDoctorIsListedWhenTheFormIsLoadedAgain) {
  const qint64 id = add(acupuncture());
  open(id);
  doctors();
  push(u"cmdAdd");
  enter(kDoctor);
  push(u"cmdUpdate");
  EXPECT_EQ(m_form->items(qs(u"Combo1(24)")), QStringList(qs(u"同意医師のデータがありません")));
  m_form.reset();
  open(id);
  EXPECT_EQ(m_form->items(qs(u"Combo1(24)")), QStringList(kDoctor[0]));
}

TEST_F(ClaimFormListsTest, ChoosingLeavesTheDirtyMarksAlone) {
  add(kDoctorRegister, kDoctor);
  openNew(acupuncture());
  arrow(24);
  EXPECT_FALSE(m_form->checkChanged());
  EXPECT_FALSE(m_form->treatmentChanged());
}

TEST_F(ClaimFormListsTest, TheButtonsOpenTheRegistersWithTheirHints) {
  openNew(acupuncture());
  press(qs(u"Command12"));
  EXPECT_TRUE(m_navigator.lastRoute<routes::DoctorRegister>().fromClaim);
  press(qs(u"Command14"));
  EXPECT_TRUE(m_navigator.lastRoute<routes::InsurerRegister>().fromClaim);
  EXPECT_EQ(m_navigator.shows, QStringList({qs(u"登録2"), qs(u"登録3")}));
  EXPECT_EQ(m_form->findChild<QPushButton*>(qs(u"Command12"))->toolTip(),
            qs(u"同意医師の各項目に入力後押してください。"));
  EXPECT_EQ(m_form->findChild<QPushButton*>(qs(u"Command14"))->toolTip(),
            qs(u"保険者の所在地・名称・番号を入力してから押してください。"));
}

}  // namespace
}  // namespace claims

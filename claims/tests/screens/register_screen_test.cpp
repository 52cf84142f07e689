#include <sqlite3.h>

#include "claims/tests/screens/register_fixture.h"
#include "platform/screen/testing/screen_probe.h"

namespace claims {
namespace {

class RegisterScreenTest : public RegisterTest {};

QString blank(const char16_t* label) {
  return qs(label) + qs(u"が未入力です。不明の場合でも、仮の文字か数字を必ず入力して下さい。");
}

// ---- The windows ----

TEST_F(RegisterScreenTest, EveryControlIsNamedSpokenAndReached) {
  for (const Register* list : {&kDoctorRegister, &kInsurerRegister}) {
    openRegister(*list);
    screen::testing::ScreenProbe probe(*m_register, m_channel);
    probe.open();
    EXPECT_EQ(probe.faults(), QStringList());
    EXPECT_EQ(probe.unknownColumns({QFileInfo(m_run.folders[size_t(list->folder)]).fileName()}),
              QStringList());
    EXPECT_EQ(m_register->caption(qs(u"Command2")), qs(u"左記データを保険申請に代入"));
  }
}

TEST_F(RegisterScreenTest, EachWindowSaysHowARowIsEntered) {
  const QString hint = qs(u"新規ボタンを押してから下記に正確に書き込んだ上、登録ボタンを押して下さい。");
  EXPECT_EQ(doctors().windowTitle(), qs(u"同意医師の登録"));
  EXPECT_TRUE(m_register->openingTexts().contains(hint));
  EXPECT_EQ(m_register->items(qs(u"Combo1")),
            QStringList({qs(u"氏名"), qs(u"病院名"), qs(u"TEL"), qs(u"フリガナ"), qs(u"住所")}));
  EXPECT_EQ(insurers().windowTitle(), qs(u"保険者登録"));
  EXPECT_EQ(
      m_register->openingTexts(),
      QStringList({qs(u"保険者登録"), hint,
                   qs(u"（注）保険者名称は、受領委任の申請総括表で抽出に必要ですので必ず入力してください。"
                      u"（1文字でも異なると別の保険者と認識してしまいます。）"),
                   qs(u"（記入例）府中市→府中"), qs(u"（記入例）品川社保→品川")}));
  EXPECT_EQ(m_register->items(qs(u"Combo1")), QStringList({qs(u"番号"), qs(u"名称"), qs(u"所在地")}));
}

TEST_F(RegisterScreenTest, FieldsAreHeldToTheirLimits) {
  struct Limit {
    const Register& list;
    int field, characters;
  };
  const Limit limits[] = {{kDoctorRegister, 0, 50}, {kDoctorRegister, 1, 32},  {kDoctorRegister, 2, 50},
                          {kDoctorRegister, 4, 16}, {kInsurerRegister, 0, 20}, {kInsurerRegister, 2, 30}};
  for (const Limit& limit : limits) {
    openRegister(limit.list);
    screen::testing::ScreenProbe probe(*m_register, m_channel);
    probe.open();
    push(u"cmdAdd");
    const QString field = QStringLiteral("txtFields(%1)").arg(limit.field);
    m_register->focusOn(field);
    probe.type(QString(limit.characters, QChar(u'あ')) + QStringLiteral("余"));
    EXPECT_EQ(m_register->text(field), QString(limit.characters, QChar(u'あ')));
  }
}

TEST_F(RegisterScreenTest, TheCloseBoxIsRefused) {
  doctors().show();
  EXPECT_FALSE(m_register->close());
  EXPECT_EQ(told(), QStringList(qs(u"「閉じる」ボタンより終了して下さい")));
  EXPECT_TRUE(m_register->isVisible());
}

// ---- Storing ----

TEST_F(RegisterScreenTest, ANewRowIsStored) {
  add(kDoctorRegister, kDoctor);
  doctors();
  push(u"cmdAdd");
  EXPECT_EQ(fields(), QStringList({QString(), QString(), QString(), QString(), QString()}));
  enter(kNamesake);
  push(u"cmdUpdate");
  EXPECT_EQ(stored(kDoctorRegister), QList<QStringList>({kDoctor, kNamesake}));
  EXPECT_EQ(fields(), kNamesake);
  EXPECT_EQ(listed().size(), 2);
  EXPECT_TRUE(m_channel.lastSaid().startsWith(qs(u"登録しました")));
  EXPECT_TRUE(told().isEmpty());
}

TEST_F(RegisterScreenTest, EachBlankFieldIsReportedInTurnAndGetsTheFocus) {
  struct Case {
    const Register& list;
    QStringList values;
    std::vector<const char16_t*> labels;
  };
  const Case cases[] = {{kDoctorRegister, kDoctor, {u"氏名", u"フリガナ", u"病院名", u"住所", u"TEL"}},
                        {kInsurerRegister, kInsurer, {u"名称", u"番号", u"所在地"}}};
  for (const Case& each : cases) {
    openRegister(each.list);
    screen::testing::ScreenProbe(*m_register, m_channel).open();
    push(u"cmdAdd");
    QStringList typed(each.values.size());
    for (qsizetype i = 0; i < each.values.size(); ++i) {
      m_register->focusOn(qs(u"cmdUpdate"));
      push(u"cmdUpdate");
      EXPECT_EQ(told(), QStringList(blank(each.labels[size_t(i)])));
      EXPECT_EQ(m_register->focused(), QStringLiteral("txtFields(%1)").arg(i));
      EXPECT_TRUE(stored(each.list).isEmpty());
      EXPECT_EQ(fields(), typed) << "what was typed stays";
      typed[i] = each.values[i];
      enter(typed);
    }
    push(u"cmdUpdate");
    EXPECT_TRUE(told().isEmpty());
    EXPECT_EQ(stored(each.list), QList<QStringList>({each.values}));
  }
}

TEST_F(RegisterScreenTest, ABlankTelephoneIsRefusedAndADashIsNot) {
  QStringList values = kDoctor;
  values[4] = QString();
  doctors();
  push(u"cmdAdd");
  enter(values);
  push(u"cmdUpdate");
  EXPECT_EQ(told(), QStringList(blank(u"TEL")));
  values[4] = qs(u"　");
  enter(values);
  push(u"cmdUpdate");
  EXPECT_EQ(told(), QStringList(blank(u"TEL"))) << "blanks are not a telephone number";
  EXPECT_TRUE(stored(kDoctorRegister).isEmpty());
  values[4] = qs(u"-");
  enter(values);
  push(u"cmdUpdate");
  EXPECT_TRUE(told().isEmpty());
  EXPECT_EQ(stored(kDoctorRegister), QList<QStringList>({values}));
}

TEST_F(RegisterScreenTest, AStoredRowCannotBeBlanked) {
  add(kInsurerRegister, kInsurer);
  insurers();
  enter({kInsurer[0], QString(), kInsurer[2]});
  push(u"cmdUpdate");
  EXPECT_EQ(told(), QStringList(blank(u"番号")));
  EXPECT_EQ(stored(kInsurerRegister), QList<QStringList>({kInsurer}));
}

TEST_F(RegisterScreenTest, WhatWasTypedIntoAnEmptyRegisterIsNotLost) {
  insurers();
  enter(kInsurer);
  push(u"cmdUpdate");
  EXPECT_EQ(stored(kInsurerRegister), QList<QStringList>({kInsurer}));
  doctors();
  enter({kDoctor[0]});
  push(u"cmdAdd");
  EXPECT_EQ(m_register->text(qs(u"txtFields(0)")), kDoctor[0]) << "新規 after the first field was typed";
}

TEST_F(RegisterScreenTest, ARowThatAnotherProgramDeletedIsReportedAndTheTextStays) {
  add(kInsurerRegister, kInsurer);
  insurers();
  const QStringList typed{qs(u"架空町"), qs(u"654321"), qs(u"架空町2")};
  enter(typed);
  {
    store::RecordSet other = rowsOf(kInsurerRegister);
    ASSERT_TRUE(other.remove());
  }
  push(u"cmdUpdate");
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].startsWith(qs(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :")));
  EXPECT_EQ(fields(), typed);
}

TEST_F(RegisterScreenTest, ARowThatAnotherProgramChangedIsRefusedAndTheTextStays) {
  add(kInsurerRegister, kInsurer);
  insurers();
  enter({kInsurer[0], qs(u"654321"), kInsurer[2]});
  sqlite3* elsewhere = nullptr;
  ASSERT_EQ(sqlite3_open(m_run.folders[frame::folder::kInsurers].toUtf8().constData(), &elsewhere),
            SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(elsewhere, "UPDATE 保険者 SET 番号='999999'", nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(elsewhere);
  push(u"cmdUpdate");
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].startsWith(qs(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :")));
  EXPECT_EQ(m_register->text(qs(u"txtFields(1)")), qs(u"654321"));
  EXPECT_EQ(stored(kInsurerRegister).first()[1], qs(u"999999"));
}

// ---- Leaving a row ----

TEST_F(RegisterScreenTest, UnstoredTextIsAskedForBeforeTheRowIsLeft) {
  add(kInsurerRegister, kInsurer);
  add(kInsurerRegister, {qs(u"例示市"), qs(u"2"), qs(u"例示")});
  insurers();
  enter({qs(u"書きかけ")});
  answer({false, false, false, true});
  m_register->goNext();
  push(u"Command1");
  push(u"cmdClose");
  EXPECT_EQ(m_register->text(qs(u"txtFields(0)")), qs(u"書きかけ"));
  EXPECT_TRUE(m_navigator.unloads.isEmpty());
  m_register->goNext();
  EXPECT_EQ(m_register->text(qs(u"txtFields(0)")), qs(u"例示市"));
  EXPECT_EQ(stored(kInsurerRegister).first(), kInsurer) << "登録 alone stores";
}

TEST_F(RegisterScreenTest, AnUntouchedNewRowIsLeftWithoutAQuestion) {
  add(kInsurerRegister, kInsurer);
  insurers();
  push(u"cmdAdd");
  m_register->goFirst();
  EXPECT_EQ(fields(), kInsurer);
  push(u"cmdAdd");
  push(u"cmdClose");
  EXPECT_TRUE(told().isEmpty());
  EXPECT_EQ(m_navigator.unloads, QStringList(qs(u"登録3")));
  EXPECT_EQ(stored(kInsurerRegister).size(), 1);
}

// ---- Deleting ----

TEST_F(RegisterScreenTest, DeletingAsksInTheWordsOfTheRegister) {
  const std::pair<const Register&, QString> cases[] = {
      {kDoctorRegister, qs(u"　同意医師のデータを削除します")},
      {kInsurerRegister, qs(u"　保険者のデータを削除します")}};
  for (const auto& [list, question] : cases) {
    add(list, &list == &kDoctorRegister ? kDoctor : kInsurer);
    openRegister(list);
    answer({false, true});
    push(u"cmdDelete");
    EXPECT_EQ(told(), QStringList(question));
    EXPECT_EQ(stored(list).size(), 1);
    push(u"cmdDelete");
    EXPECT_TRUE(stored(list).isEmpty());
    told();
    push(u"cmdDelete");
    EXPECT_EQ(told(), QStringList(qs(u"削除するデータがありません。")));
  }
}

TEST_F(RegisterScreenTest, DeletingANewRowLeavesTheStoredOnes) {
  add(kInsurerRegister, kInsurer);
  insurers();
  push(u"cmdAdd");
  answer({true});
  push(u"cmdDelete");
  EXPECT_EQ(m_channel.lastSaid(),
            QStringList({qs(u"削除しました"), qs(u"1件"), kInsurer[0]}).join(QChar(254)));
  EXPECT_EQ(stored(kInsurerRegister), QList<QStringList>({kInsurer}));
  EXPECT_EQ(fields(), kInsurer);
}

// ---- Search ----

TEST_F(RegisterScreenTest, EachKeySearchesTheWholeRegister) {
  add(kDoctorRegister, kDoctor);
  add(kDoctorRegister, {qs(u"見本 先生"), qs(u"ﾐﾎﾝ"), qs(u"見本医院"), qs(u"見本町"), qs(u"9")});
  doctors();
  const std::pair<const char16_t*, const char16_t*> hits[] = {{u"氏名", u"見本"},
                                                              {u"病院名", u"見本医"},
                                                              {u"TEL", u"９"},
                                                              {u"フリガナ", u"みほん"},
                                                              {u"住所", u"町"}};
  for (const auto& [key, text] : hits) {
    searchFor(key, text);
    EXPECT_EQ(listed(), QStringList(qs(u"見本 先生"))) << qs(key).toStdString();
    searchFor(u"氏名", u"架空");  // in the whole register, not in the last hits
    EXPECT_EQ(listed(), QStringList(qs(u"架空 医師")));
  }
  EXPECT_TRUE(told().isEmpty());
  searchFor(u"住所", u"");
  EXPECT_EQ(listed().size(), 2) << "blank text shows all rows";
  EXPECT_TRUE(m_channel.lastSaid().startsWith(qs(u"2件"))) << m_channel.lastSaid().toStdString();
}

TEST_F(RegisterScreenTest, NoHitIsReportedAndTheListStays) {
  add(kInsurerRegister, kInsurer);
  insurers();
  searchFor(u"番号", u"9999");
  EXPECT_EQ(m_messages.titles(), QStringList(qs(u"Not found")));
  EXPECT_EQ(told(), QStringList(qs(u"該当がありません。")));
  EXPECT_EQ(listed(), QStringList(kInsurer[0]));
  searchFor(u"番号", u"1'2");
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].startsWith(qs(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :")));
  EXPECT_EQ(listed(), QStringList(kInsurer[0]));
}

// ---- The claim ----

TEST_F(RegisterScreenTest, TheRowIsPutOnTheClaimAndStoredThere) {
  add(kDoctorRegister, kDoctor);
  add(kInsurerRegister, kInsurer);
  const qint64 id = add(acupuncture());
  open(id);
  doctors();
  push(u"Command2");
  insurers();
  push(u"Command2");
  EXPECT_TRUE(told().isEmpty());
  const ClaimRecord shown = m_form->record();
  const std::pair<const char16_t*, QString> expected[] = {
      {u"同意医師氏名", kDoctor[0]}, {u"同意医師フリガナ", kDoctor[1]},   {u"医療機関名", kDoctor[2]},
      {u"同意医師住所", kDoctor[3]}, {u"同意医師の電話番号", kDoctor[4]}, {u"保険者名称", kInsurer[0]},
      {u"保険者番号", kInsurer[1]},  {u"保険者住所", kInsurer[2]}};
  for (const auto& [column, value] : expected) {
    EXPECT_EQ(shown.named(qs(column)), value) << qs(column).toStdString();
  }
  EXPECT_FALSE(m_form->checkChanged());
  EXPECT_FALSE(m_form->treatmentChanged());
  EXPECT_TRUE(stored(id).blank(claim::doctorName)) << "not stored by itself";
  answer({true});
  press(qs(u"cmdUpdate"));
  for (const auto& [column, value] : expected) EXPECT_EQ(stored(id).named(qs(column)), value);
}

TEST_F(RegisterScreenTest, WithoutAClaimOrARowTheCopyIsRefused) {
  insurers();
  push(u"Command2");
  EXPECT_EQ(told(), QStringList(qs(u"代入するデータがありません。")));
  add(kInsurerRegister, kInsurer);
  insurers();
  push(u"Command2");
  EXPECT_EQ(told(), QStringList(qs(u"保険申請の画面が開かれていないため、代入できません。")));
  EXPECT_EQ(fields(), kInsurer);
}

TEST_F(RegisterScreenTest, OpenedFromTheClaimANewDoctorIsReadyToBeStored) {
  add(kDoctorRegister, kNamesake);
  ClaimRecord claim = acupuncture();
  for (size_t i = 0; i < kDoctorRegister.fields.size(); ++i)
    claim.set(kDoctorRegister.fields[i].claimColumn, kDoctor[qsizetype(i)]);
  open(add(claim));
  doctors(routes::DoctorRegister{.fromClaim = true});
  EXPECT_EQ(fields(), kDoctor);
  EXPECT_EQ(stored(kDoctorRegister).size(), 1) << "登録 alone stores";
  push(u"cmdUpdate");
  EXPECT_EQ(stored(kDoctorRegister), QList<QStringList>({kNamesake, kDoctor}));
  searchFor(u"病院名", u"例示");
  m_register->opened(routes::DoctorRegister{.fromClaim = true});
  EXPECT_FALSE(m_register->source().rows().adding()) << "the register holds it by now";
  EXPECT_EQ(fields(), kDoctor);
}

TEST_F(RegisterScreenTest, WhatTheClaimLeavesBlankMakesNoNewRow) {
  add(kInsurerRegister, {qs(u"例示市"), qs(u"2"), qs(u"例示")});
  add(kInsurerRegister, kInsurer);
  open(add(acupuncture()));  // 架空市, 123456, no address
  insurers(routes::InsurerRegister{.fromClaim = true});
  EXPECT_FALSE(m_register->source().rows().adding());
  EXPECT_EQ(fields(), kInsurer);
}

TEST_F(RegisterScreenTest, OpenedFromAClaimWithoutADoctorItJustOpens) {
  add(kDoctorRegister, kNamesake);
  open(add(acupuncture()));
  doctors(routes::DoctorRegister{.fromClaim = true});
  EXPECT_FALSE(m_register->source().rows().adding());
  EXPECT_EQ(fields(), kNamesake);
  m_navigator.open.insert(qs(u"frmレセプトフォーム"));
  push(u"cmdClose");
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"frmレセプトフォーム"))) << "back where it was opened from";
  EXPECT_EQ(m_navigator.unloads, QStringList(qs(u"登録2")));
}

TEST_F(RegisterScreenTest, AMissingFileIsReportedByNameAndNothingBreaks) {
  QFile::remove(m_run.folders[frame::folder::kDoctors]);
  doctors();
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].startsWith(qs(u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :")));
  EXPECT_TRUE(texts[0].contains(qs(u"同意医師2000.mdb")));
  for (const char16_t* command : {u"cmdAdd", u"cmdUpdate", u"cmdDelete", u"Command1"}) {
    push(command);
    EXPECT_EQ(told(), texts) << "each command that needs it tells it again";
  }
  push(u"cmdClose");
  EXPECT_EQ(told(), QStringList());
  EXPECT_FALSE(QFile::exists(m_run.folders[frame::folder::kDoctors]));
}

}  // namespace
}  // namespace claims

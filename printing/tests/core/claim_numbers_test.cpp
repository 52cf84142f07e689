#include <gtest/gtest.h>

#include "printing/tests/core/claim_fixture.h"

// Number boxes, institution and practitioner numbers, amount boxes.

namespace printing::tests {
namespace {

QString boxes(Filled& filled, const char* stem, int count = 8) {
  QString row;
  SpyEngine& engine = filled.fill();
  for (int i = 1; i <= count; ++i) {
    const QString text = engine.printed(QString::fromUtf8(stem) + QString::number(i));
    row += text.isEmpty() ? QStringLiteral("_") : text;
  }
  return row;
}

TEST(InsurerNumber, SixDigitsStandAtTheRightAllOthersAtTheLeft) {
  const struct {
    const char16_t* number;
    const char* row;
  } rows[] = {
      {u"138057", "__138057"}, {u"1380570", "1380570_"}, {u"12345678", "12345678"}, {u"12345", "12345___"}};
  for (const auto& row : rows) {
    Filled filled;
    filled.set({{u"保険の種類", u"国保"}, {u"保険者番号", row.number}});
    EXPECT_EQ(boxes(filled, "Name0_"), QString::fromUtf8(row.row));
  }
}

TEST(InsurerNumber, LateElderlyBeginsWithThirtyNine) {
  const struct {
    const char16_t* number;
    const char* row;
  } rows[] = {{u"131234", "39131234"},   {u"39131234", "39131234"},    // typed with its 39
              {u"不明", "________"},                                   // no digit: neither the 3 nor the 9
              {u"", "________"},         {u"1312345678", "________"},  // too long to stand behind 39
              {u"131234  ", "________"},  // blanks count: eight characters and more are not printed
              {u"131234 ", "39131234"},  {u"13 234", "3913_234"}};
  for (const auto& row : rows) {
    Filled filled;
    filled.set({{u"保険の種類", u"後期高齢"}, {u"保険者番号", row.number}});
    EXPECT_EQ(boxes(filled, "HokenNo_"), QString::fromUtf8(row.row));
    EXPECT_EQ(boxes(filled, "Name0_"), QStringLiteral("________"));
  }
}

TEST(AccountNumber, FillsItsBoxesFromTheLeft) {
  Filled filled;
  filled.set({{u"口座番号", u"1234567"}});
  EXPECT_EQ(boxes(filled, "kouza_num"), QStringLiteral("1234567_"));
}

TEST(InstitutionCode, RegistrationNumberInFullWidthElseTheAssociations) {
  Filled filled;
  filled.set({{u"c14", u"12-34"}, {u"師会等の機関番号", u"K-001"}});
  EXPECT_EQ(filled["KikanCode"], QStringLiteral("１２－３４"));
  EXPECT_FALSE(filled.marked("KikanCode1"));
  filled.set({{u"c14", u""}});
  EXPECT_EQ(filled["KikanCode1"], QStringLiteral("K-001"));
  EXPECT_FALSE(filled.marked("KikanCode"));
}

TEST(InstitutionCode, KindsOwnNumberWhereTheCommonOneIsBlank) {
  Filled hari, massage(PrintKind::Massage);
  for (Filled* filled : {&hari, &massage}) {
    filled->source.profile[frame::slot::kInstitutionHari] = QStringLiteral("H1");
    filled->source.profile[frame::slot::kInstitutionMassage] = QStringLiteral("M1");
  }
  EXPECT_EQ(hari["KikanCode1"], QStringLiteral("H1"));
  EXPECT_EQ(massage["KikanCode1"], QStringLiteral("M1"));
}

TEST(InstitutionCode, MieChoosesAgain) {
  Filled filled;
  filled.source.prefecture = frame::Prefecture::Mie;
  filled.source.profile[frame::slot::kElderlyHari] = QStringLiteral("E-9");
  filled.set({{u"保険の種類", u"後期高齢"}, {u"師会等の機関番号", u"K-001"}});
  EXPECT_EQ(filled["KoukiCode"], QStringLiteral("E-9"));
  EXPECT_FALSE(filled.marked("KikanCode"));
  EXPECT_FALSE(filled.marked("KikanCode1"));
  filled.set({{u"c14", u"77"}});
  EXPECT_EQ(filled["KikanCode"], QStringLiteral("７７"));
  EXPECT_FALSE(filled.marked("KoukiCode"));
  filled.set({{u"c14", u""}, {u"保険の種類", u"国保"}});
  EXPECT_EQ(filled["KikanCode1"], QStringLiteral("K-001"));
}

class PractitionerNumber : public ::testing::Test {
 protected:
  PractitionerNumber() {
    for (Filled* f : {&hari, &massage}) {
      f->source.profile[18] = QStringLiteral("はり1");
      f->source.profile[19] = QStringLiteral("きゅう2");
      f->source.profile[20] = QStringLiteral("マ3");
      f->source.profile[frame::slot::kPractitionerNumber] = QStringLiteral("施術者4");
      f->source.profile[frame::slot::kRegistration] = QStringLiteral("登録5");
    }
  }
  Filled hari, massage{PrintKind::Massage};
};

TEST_F(PractitionerNumber, WithoutDelegationTheRegistrationNumber) {
  EXPECT_EQ(hari["sejutuNO"], QStringLiteral("登録5"));
  EXPECT_EQ(massage["sejutuNO"], QStringLiteral("登録5"));
}

TEST_F(PractitionerNumber, DelegatedMutualAidTakesTheLicences) {
  for (const char16_t* kind : {u"共済", u"組合"}) {
    hari.set({{u"保険の種類", kind}, {u"c24", u"1"}});
    massage.set({{u"保険の種類", kind}, {u"c24", u"1"}});
    EXPECT_EQ(hari["sejutuNO"], QStringLiteral("はり1　きゅう2"));
    EXPECT_EQ(massage["sejutuNO"], QStringLiteral("マ3"));
  }
  hari.source.profile[19] = QString();
  EXPECT_EQ(hari["sejutuNO"], QStringLiteral("はり1"));
}

TEST_F(PractitionerNumber, DelegatedOthersTakeThePractitionersNumber) {
  hari.set({{u"保険の種類", u"国保"}});
  hari.source.form.delegated = true;
  EXPECT_EQ(hari["sejutuNO"], QStringLiteral("施術者4"));
}

TEST_F(PractitionerNumber, LicencesStandForTheRegistrationWhereThePracticeChoseSo) {
  hari.source.profile[16] = QStringLiteral("2");
  EXPECT_EQ(hari["sejutuNO"], QStringLiteral("はり1　きゅう2"));
}

QStringList amounts(Filled& filled) {
  QStringList lines;
  for (const QString& line : filled.fill().sheet())
    if (line.startsWith(u"dain")) lines << line;
  return lines;
}

TEST(AmountBoxes, EachFieldGoesToItsBox) {
  // Every field holds a number of its own; both rows of each line count.
  Filled hari;
  QStringList record{QStringLiteral("鍼データ集結ver9.0")};
  for (int field = 1; field <= 48; ++field) record << QString::number(1000 + field);
  hari.source.claim.set(claim::hariRecord, record.join(u','));
  QStringList expected;
  for (int field = 1; field <= 48; ++field) {
    if (field == 43 || field == 44) continue;  // unit fee and count of the report are not printed
    const int box = field == 10 ? 13 : field == 13 ? 10 : field;
    expected << QStringLiteral("dain%1=1,%2").arg(box).arg(field, 3, 10, QLatin1Char('0'));
  }
  expected.sort();
  EXPECT_EQ(amounts(hari), expected);
}

TEST(AmountBoxes, MassageFieldsAreNotCrossed) {
  Filled massage(PrintKind::Massage);
  QStringList record{QStringLiteral("あマデータ集結ver9.0")};
  for (int field = 1; field <= 60; ++field) record << QString::number(1000 + field);
  massage.source.claim.set(claim::massageRecord, record.join(u','));
  QStringList expected;
  for (int field = 1; field <= 60; ++field)
    if (field != 55 && field != 56)
      expected << QStringLiteral("dain%1=1,%2").arg(field).arg(field, 3, 10, QLatin1Char('0'));
  expected.sort();
  EXPECT_EQ(amounts(massage), expected);
}

TEST(AmountBoxes, OneCountedRowStandsInTheMiddle) {
  // Fields of the upper and of the lower row of each line, and the first box of the third placement.
  const struct {
    PrintKind kind;
    int upper, lower, middle;
  } rows[] = {{PrintKind::Acupuncture, 4, 7, 51},   {PrintKind::Acupuncture, 10, 13, 54},
              {PrintKind::Acupuncture, 16, 19, 57}, {PrintKind::Acupuncture, 22, 25, 60},
              {PrintKind::Acupuncture, 28, 31, 63}, {PrintKind::Massage, 10, 13, 71},
              {PrintKind::Massage, 16, 19, 74},     {PrintKind::Massage, 22, 25, 77},
              {PrintKind::Massage, 28, 31, 80},     {PrintKind::Massage, 34, 37, 83}};
  for (const auto& row : rows)
    for (const int counted : {row.upper, row.lower}) {
      Filled filled(row.kind);
      filled.record({{counted, 1610}, {counted + 1, 2}, {counted + 2, 3220}});
      const auto box = [&](int i, const char* text) {
        return QStringLiteral("dain%1=%2").arg(row.middle + i).arg(QLatin1String(text));
      };
      EXPECT_EQ(amounts(filled), QStringList({box(0, "1,610"), box(1, "2"), box(2, "3,220")}));
    }
}

TEST(AmountBoxes, ZeroPrintsNothing) {
  Filled filled;
  filled.record({{46, 0}, {48, 5000}});
  EXPECT_EQ(amounts(filled), QStringList({"dain48=5,000"}));
}

TEST(AmountBoxes, OnlyARecordIsRead) {
  Filled filled;
  for (const char16_t* text : {u"", u"1,2,3", u"あマデータ集結ver9.0,1"}) {
    filled.set({{u"h1", text}});
    EXPECT_TRUE(amounts(filled).isEmpty());
  }
}

TEST(AmountBoxes, NothingIsComputedHere) {
  // The stored record rules even where it contradicts the grid.
  Filled filled;
  filled.set({{u"申請年月", u"令和6年10月"}, {u"治療内容1", u"a"}});
  filled.record({{46, 7}});
  EXPECT_EQ(amounts(filled), QStringList({"dain46=7"}));
}

}  // namespace
}  // namespace printing::tests

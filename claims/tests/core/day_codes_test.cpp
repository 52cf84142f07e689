#include "claims/core/day_codes.h"

#include <gtest/gtest.h>

namespace claims {
namespace {

TEST(DayCode, OneLetterIsExactAndNothingElse) {
  EXPECT_EQ(DayCode(QStringLiteral("a")).exact(), u'a');
  EXPECT_EQ(DayCode(QStringLiteral("j")).exact(), u'j');
  for (const char16_t* text : {u"", u"k", u"z", u"A", u"ａ", u"aa", u" a", u"gh"})
    EXPECT_EQ(DayCode(QString::fromUtf16(text)).exact(), 0);
}

TEST(DayCode, TokensCountWhereverTheyStandAndOnceEach) {
  const DayCode both(QStringLiteral("g2h3"));
  EXPECT_TRUE(both.has(u'g', 2));
  EXPECT_TRUE(both.has(u'h', 3));
  EXPECT_FALSE(both.has(u'g', 3));
  EXPECT_FALSE(both.has(u'h', 2));
  EXPECT_EQ(both.leadingLetter(), u'g');
  EXPECT_EQ(DayCode(QStringLiteral("h3g2")).leadingLetter(), u'h');
  EXPECT_TRUE(DayCode(QStringLiteral("xxg1")).has(u'g', 1));
  EXPECT_TRUE(DayCode(QStringLiteral("g25")).has(u'g', 2));
}

TEST(DayCode, NoTokenInOtherForms) {
  for (const char16_t* text : {u"g", u"gh", u"ih", u"hj", u"g6", u"g0", u"G2", u"g２", u"2g", u"a1"})
    EXPECT_FALSE(DayCode(QString::fromUtf16(text)).hasToken());
}

TEST(VisitForm, BandsByPatients) {
  const struct {
    const char16_t* entry;
    VisitForm form;
  } rows[] = {{u"", VisitForm::None},       {u"t", VisitForm::Sudden},    {u"v1", VisitForm::One},
              {u"v2", VisitForm::Two},      {u"v3", VisitForm::Small},    {u"v9", VisitForm::Small},
              {u"v10", VisitForm::Large},   {u"v20", VisitForm::Large},   {u"v21", VisitForm::Unknown},
              {u"v25", VisitForm::Unknown}, {u"v0", VisitForm::Unknown},  {u"v", VisitForm::Unknown},
              {u"V1", VisitForm::Unknown},  {u"v01", VisitForm::Unknown}, {u"T", VisitForm::Unknown},
              {u"tt", VisitForm::Unknown},  {u"1", VisitForm::Unknown},   {u"v 1", VisitForm::Unknown}};
  for (const auto& row : rows)
    EXPECT_EQ(visitForm(QString::fromUtf16(row.entry)), row.form)
        << QString::fromUtf16(row.entry).toStdString();
}

TEST(VisitDistance, WholeKilometresOneToTwenty) {
  for (int km = 1; km <= 20; ++km) EXPECT_EQ(visitDistance(QString::number(km)), km);
  for (const char16_t* text : {u"", u"0", u"21", u"04", u"4.0", u"４", u"-4", u" 4", u"4km", u"100", u"v4"})
    EXPECT_EQ(visitDistance(QString::fromUtf16(text)), 0);
}

TEST(CodeEntry, RefusesTheOtherKindsSingleLettersOnly) {
  const QString wrong = QStringLiteral("治療内容が正しくありません。");
  for (const char16_t* letter : {u"g", u"h", u"i", u"j"}) {
    EXPECT_EQ(codeEntryMessage(QString::fromUtf16(letter), Kind::Acupuncture), wrong);
    EXPECT_TRUE(codeEntryMessage(QString::fromUtf16(letter), Kind::Massage).isNull());
  }
  for (const char16_t* letter : {u"a", u"b", u"c", u"d", u"e", u"f"}) {
    EXPECT_EQ(codeEntryMessage(QString::fromUtf16(letter), Kind::Massage), wrong);
    EXPECT_TRUE(codeEntryMessage(QString::fromUtf16(letter), Kind::Acupuncture).isNull());
  }
  for (const char16_t* text : {u"", u"z", u"g2", u"gh", u"ab", u"ｇ"}) {
    EXPECT_TRUE(codeEntryMessage(QString::fromUtf16(text), Kind::Acupuncture).isNull());
    EXPECT_TRUE(codeEntryMessage(QString::fromUtf16(text), Kind::Massage).isNull());
  }
}

TEST(VisitEntry, RuleOfTheMonth) {
  const QString fresh =
      QStringLiteral("往療距離が正しくありません。「記入の仕方」をクリックし、ご確認ください。");
  const QString old = QStringLiteral("往療距離が正しくありません。");
  const struct {
    const char16_t* text;
    bool okNew, okOld;
  } rows[] = {{u"", true, true},      {u"t", true, false},    {u"v1", true, false}, {u"v20", true, false},
              {u"v21", false, false}, {u"v25", false, false}, {u"1", false, true},  {u"20", false, true},
              {u"21", false, false},  {u"0", false, false},   {u"x", false, false}, {u"４", false, false}};
  for (const auto& row : rows) {
    const QString text = QString::fromUtf16(row.text);
    EXPECT_EQ(visitEntryMessage(text, true), row.okNew ? QString() : fresh) << text.toStdString();
    EXPECT_EQ(visitEntryMessage(text, false), row.okOld ? QString() : old) << text.toStdString();
  }
}

}  // namespace
}  // namespace claims

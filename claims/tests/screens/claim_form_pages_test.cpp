#include "claims/core/claim_store.h"
#include "claims/core/print_settings.h"
#include "claims/screens/claim_form_rows.h"
#include "claims/tests/screens/claim_form_fixture.h"
#include "platform/screen/testing/screen_probe.h"
#include "platform/store/catalogue.h"

// The form as it is declared: every column in reach, names, speech.

namespace claims {

namespace {

using ClaimFormPages = ClaimFormTest;

/// Columns of the tables that no control shows, each with its reason.
struct Unshown {
  int half;
  const char16_t* pattern;  ///< whole name, as a regular expression
  const char16_t* why;
};
constexpr Unshown kUnshown[] = {
    {1, u"保険順位", u"derived from 保険の種類 at store"},
    {1, u"保険証番号1", u"a key of the lists, written by no page"},
    {1, u"総括表", u"the mark of summary printing"},
    {1, u"施術者Flag\\d+", u"flags of the older clinic profile"},
    {2, u"d1|d1[7-9]|d2\\d|d3[01]", u"reserve columns of a growth run, read by nothing"},
    {2, u"e\\d+", u"reserve columns of a growth run, read by nothing"},
    {2, u"txtdummy3[1-9]|txtdummy40", u"reserve columns of a growth run, read by nothing"},
    {2, u"numdummy\\d+", u"reserve numbers; the first keeps the summary code"},
    {2, u"yn[6-9]|yn10", u"reserve columns of a growth run, read by nothing"},
    {2, u"txt dummy12", u"a switch of an older page, read by nothing"},
};

bool isCalculated(int half, const QString& column) {
  for (const store::Column& name : half == 1 ? calculatedColumns() : calculatedColumnsSecond())
    if (column == name.text()) return true;
  return false;
}

bool isUnshown(int half, const QString& column) {
  if (column == u"ID" || isCalculated(half, column)) return true;
  for (const Unshown& row : kUnshown)
    if (row.half == half &&
        QRegularExpression(QRegularExpression::anchoredPattern(qs(row.pattern))).match(column).hasMatch())
      return true;
  return false;
}

TEST_F(ClaimFormPages, EveryColumnOfBothHalvesIsOnAControlOrHasItsReason) {
  QHash<int, QSet<QString>> shown;
  for (const BoundControl& bound : boundControls(claimFormDeclaration().rows))
    shown[bound.half].insert(bound.column);
  for (const store::TableRow& table : store::catalogue()) {
    const int half = qs(table.file) == u"保険申請2000_1.mdb" && qs(table.table) == u"保険申請"   ? 1
                     : qs(table.file) == u"保険申請2000_2.mdb" && qs(table.table) == u"保険申請" ? 2
                                                                                                 : 0;
    if (half == 0) continue;
    for (const store::ColumnRow& column : table.columns) {
      const QString name = qs(column.name);
      EXPECT_TRUE(shown[half].contains(name) || isUnshown(half, name))
          << "half " << half << ": " << name.toStdString();
    }
  }
}

TEST_F(ClaimFormPages, EveryBoundColumnStandsInItsTableOnce) {
  QHash<QString, QString> seen;
  for (const BoundControl& bound : boundControls(claimFormDeclaration().rows)) {
    const QString file = bound.half == 1 ? qs(u"保険申請2000_1.mdb") : qs(u"保険申請2000_2.mdb");
    const store::TableRow* table = store::tableOfFile(file);
    ASSERT_NE(table, nullptr);
    EXPECT_NE(store::findColumn(*table, bound.column), nullptr)
        << bound.control.toStdString() << " " << bound.column.toStdString();
    const QString key = QString::number(bound.half) + bound.column;
    EXPECT_FALSE(seen.contains(key)) << bound.column.toStdString();
    seen.insert(key, bound.control);
  }
}

TEST_F(ClaimFormPages, TheSevenPagesStandInTheirOrder) {
  QStringList pages;
  for (const screen::Row& row : claimFormDeclaration().rows)
    if (const auto* page = std::get_if<screen::Page>(&row)) pages << qs(page->caption.get());
  EXPECT_EQ(pages, QStringList({qs(u"保険証"), qs(u"同意書"), qs(u"治療"), qs(u"各種印刷"), qs(u"印刷設定"),
                                qs(u"既往症"), qs(u"申請者の確認")}));
}

TEST_F(ClaimFormPages, PrintSettingsAreThoseOfTheRules) {
  QHash<QString, const screen::Options*> groups;
  for (const screen::Row& row : claimFormDeclaration().rows)
    if (const auto* options = std::get_if<screen::Options>(&row))
      groups.insert(qs(options->bind.column()), options);
  for (const PrintSetting& setting : printSettings()) {
    const screen::Options* group = groups.value(qs(setting.column));
    ASSERT_NE(group, nullptr) << qs(setting.column).toStdString();
    EXPECT_EQ(qs(group->caption.get()), qs(setting.caption));
    ASSERT_EQ(group->choices.size(), 2u);
    for (int i = 0; i < 2; ++i) {
      // A button may name what it switches before the words of the table.
      EXPECT_TRUE(qs(group->choices[size_t(i)].caption.get()).endsWith(qs(setting.choices[i])));
      EXPECT_EQ(qs(group->choices[size_t(i)].value), QString::number(i));
      EXPECT_EQ(qs(group->choices[size_t(i)].name.family()), qs(setting.family));
    }
  }
}

TEST_F(ClaimFormPages, EveryControlOfEitherKindIsNamedSpokenAndReached) {
  for (ClaimRecord claim : {acupuncture(), massage()}) {
    m_form.reset();
    claim.set(qs(u"yn1"), qs(u"-1"));  // with the rows of the visit table
    openNew(claim);
    screen::testing::ScreenProbe probe(*m_form, m_channel);
    probe.open();
    const QStringList faults = probe.faults();
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'\n').toStdString();
  }
}

TEST_F(ClaimFormPages, EveryFieldOfTheSevenPagesIsATabStop) {
  openNew(massage());
  screen::testing::ScreenProbe probe(*m_form, m_channel);
  probe.open();
  QStringList stops;
  for (const screen::testing::Stop& stop : probe.stops()) stops << stop.control;
  for (const char16_t* control : {u"txtFields(0)", u"Combo1(3)", u"txtFields(71)", u"Text5(31)", u"Text6(31)",
                                  u"Command23", u"FrameSet(15)", u"txtFields(144)", u"txtFields(231)"})
    EXPECT_TRUE(stops.contains(qs(control))) << qs(control).toStdString();
}

TEST_F(ClaimFormPages, DayCellsSayTheirDayAndRow) {
  openNew(acupuncture());
  goTo(qs(u"txtFields(0)"));
  const std::pair<const char16_t*, const char16_t*> cells[] = {{u"Text5(1)", u"1日 治療内容\u00fea"},
                                                               {u"Text5(31)", u"31日 治療内容\u00fe"},
                                                               {u"Text6(15)", u"15日 往療人数\u00fe"}};
  for (const auto& [cell, said] : cells) {
    m_channel.clear();
    m_form->focusOn(qs(cell));
    EXPECT_EQ(m_channel.lastSaid(), qs(said)) << qs(cell).toStdString();
  }
}

TEST_F(ClaimFormPages, OpeningSaysTheHeadingAndTheMust) {
  openNew(acupuncture());
  EXPECT_EQ(m_form->openingTexts(), QStringList({qs(u"保険申請"), qs(u"※は必ず入力してください")}));
}

}  // namespace
}  // namespace claims

#include "office/tests/screens/takings_fixture.h"

// 集計総合金額 and 集計レセ総合金額.

namespace office {
namespace {

using namespace Qt::Literals::StringLiterals;

class TotalsTest : public test::TakingsFixture {
 protected:
  static routes::Totals sums(bool ofOnePatient) {
    return {.ofOnePatient = ofOnePatient,
            .rows = 1234,
            .insurer = 1234567890,
            .share = 0,
            .treatment = 5100,
            .receipts = 2,
            .newPatients = 1};
  }
  screen::Screen& ofTakings() { return *navigator.show(sums(false)); }
  screen::Screen& ofLedger() { return *navigator.show(sums(true)); }
  QStringList boxes(const screen::Screen& screen) const {
    QStringList texts;
    for (int box = 0; box < 6; ++box) texts += screen.text(u"txtFields(%1)"_s.arg(box));
    return texts;
  }
  const QString kNote = u"集計ウインドに表示された患者のみの集計です。"_s;
};

TEST_F(TotalsTest, SumsHaveGroupsOfThreeDigitsAndZeroIsBlank) {
  EXPECT_EQ(boxes(ofTakings()),
            QStringList({u"1,234"_s, u"1,234,567,890"_s, QString(), u"5,100"_s, u"2"_s, u"1"_s}));
}

TEST_F(TotalsTest, AllSixAreHeardWhenItOpens) {
  ofTakings();
  EXPECT_TRUE(channel.heardWhole().contains(
      sentence({u"集計総合金額"_s, kNote, u"総患者数:"_s, u"1,234人"_s, u"保険者負担金:"_s,
                u"1,234,567,890円"_s, u"保険の一部負担金:"_s, u"なし"_s, u"治療金額:"_s, u"5,100円"_s,
                u"領収証発行数:"_s, u"2"_s, u"新患数:"_s, u"1人"_s})));
}

TEST_F(TotalsTest, TheLedgerCountsTreatmentsAndHasNoSixthBox) {
  screen::Screen& screen = ofLedger();
  EXPECT_EQ(screen.caption(u"txtFields(0)"_s), u"治療回数:"_s);
  EXPECT_EQ(screen.caption(u"unit(0)"_s), u"回"_s);
  for (const QString& control : {u"txtFields(5)"_s, u"unit(5)"_s, u"Label1"_s})
    EXPECT_FALSE(screen.isControlShown(control)) << control.toStdString();
  EXPECT_TRUE(channel.heardWhole().contains(sentence(
      {u"集計総合金額"_s, u"治療回数:"_s, u"1,234回"_s, u"保険者負担金:"_s, u"1,234,567,890円"_s,
       u"保険の一部負担金:"_s, u"なし"_s, u"治療金額:"_s, u"5,100円"_s, u"領収証発行数:"_s, u"2"_s})));
}

TEST_F(TotalsTest, ReopenedFromTakingsShowsAllBoxesAndSpeaksSums) {
  ofLedger();
  channel.clear();
  screen::Screen& screen = ofTakings();
  EXPECT_EQ(screen.caption(u"txtFields(0)"_s), u"総患者数:"_s);
  EXPECT_EQ(screen.caption(u"unit(0)"_s), u"人"_s);
  for (const QString& control : {u"txtFields(5)"_s, u"unit(5)"_s, u"Label1"_s})
    EXPECT_TRUE(screen.isControlShown(control)) << control.toStdString();
  ASSERT_FALSE(channel.heardWhole().isEmpty());
  EXPECT_TRUE(channel.heardWhole().first().startsWith(sentence({u"集計総合金額"_s, kNote, u"総患者数:"_s})));
}

TEST_F(TotalsTest, EachSumIsReadAgainByTab) {
  screen::Screen& screen = ofTakings();
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  const QList<screen::testing::Stop> stops = probe.stops();
  ASSERT_EQ(stops.size(), 7) << "six boxes and 閉じる";
  QStringList spoken;
  for (const screen::testing::Stop& stop : stops) spoken += stop.spoken;
  EXPECT_TRUE(spoken.contains(sentence({u"総患者数:"_s, u"1,234"_s}))) << spoken.join(u'\n').toStdString();
  EXPECT_TRUE(spoken.contains(sentence({u"保険の一部負担金:"_s, QString()})));
  EXPECT_TRUE(spoken.contains(sentence({u"新患数:"_s, u"1"_s})));
}

TEST_F(TotalsTest, EscapeCloses) {
  screen::Screen& screen = ofTakings();
  screen::testing::ScreenProbe probe(screen, channel);
  probe.open();
  probe.press(Qt::Key_Escape);
  EXPECT_FALSE(isShown(u"集計総合金額"));
}

TEST_F(TotalsTest, ClaimTotalsAreAScreenOfTheirOwn) {
  screen::Screen& screen = *navigator.show(routes::ClaimTotals{sums(false)});
  EXPECT_EQ(screen.objectName(), u"集計レセ総合金額"_s);
  EXPECT_EQ(screen.windowTitle(), u"集計レセ総合金額"_s);
  EXPECT_EQ(boxes(screen),
            QStringList({u"1,234"_s, u"1,234,567,890"_s, QString(), u"5,100"_s, u"2"_s, u"1"_s}));
}

class TakingsCatalogueTest : public test::TakingsFixture, public testing::WithParamInterface<QString> {};

TEST_P(TakingsCatalogueTest, EveryControlIsNamedSpokenAndReached) {
  addDates({u"令和6年6月15日"_s});
  takings();
  screen::Screen* screen = navigator.show(GetParam());
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screen->objectName(), GetParam());
  screen::testing::ScreenProbe probe(*screen, channel);
  probe.open();
  EXPECT_EQ(probe.faults(), QStringList());
  EXPECT_EQ(probe.unknownColumns({kFile}), QStringList());
}
INSTANTIATE_TEST_SUITE_P(Screens, TakingsCatalogueTest,
                         testing::Values(u"集計"_s, u"集計抽出"_s, u"ソート2"_s, u"集計総合金額"_s,
                                         u"集計レセ総合金額"_s));

}  // namespace
}  // namespace office

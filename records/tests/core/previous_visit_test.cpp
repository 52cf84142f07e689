#include "records/core/previous_visit.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(PreviousVisitStore, HasTheVisitInTheOrderOfItsSlots) {
  const QStringList order{
      u"氏名"_s,     u"生年月日"_s,    u"治療概略"_s,    u"保険者負担金"_s, u"保険の一部負担金"_s,
      u"治療金額"_s, u"ETC1"_s,        u"d1"_s,          u"d4"_s,           u"d7"_s,
      u"d2"_s,       u"d5"_s,          u"d8"_s,          u"d3"_s,           u"d6"_s,
      u"d9"_s,       u"memodummy21"_s, u"memodummy22"_s, u"d11"_s,          u"d12"_s,
      u"d13"_s,      u"d14"_s,         u"d15"_s,         u"d16"_s,          u"d17"_s,
      u"d18"_s,      u"d19"_s,         u"memodummy23"_s, u"memodummy24"_s,  u"d20"_s,
      u"d21"_s,      u"d22"_s,         u"d23"_s,         u"d24"_s,          u"d25"_s,
      u"d26"_s,      u"d27"_s,         u"d10"_s};
  ASSERT_EQ(order.size(), 38);
  PreviousVisit store;
  store.take([](const QString& column) { return u"値 "_s + column; });
  for (int slot = 1; slot <= 38; ++slot) {
    EXPECT_EQ(PreviousVisit::column(slot).toStdString(), order[slot - 1].toStdString()) << slot;
    EXPECT_EQ(store.value(slot).toStdString(), (u"値 "_s + order[slot - 1]).toStdString()) << slot;
  }
  for (const int unused : {39, 40}) {
    EXPECT_TRUE(PreviousVisit::column(unused).isNull());
    EXPECT_TRUE(store.value(unused).isEmpty());
  }
}

TEST(PreviousVisitStore, NeverFilledIsBlankAndTakingForgetsTheVisitBefore) {
  PreviousVisit store;
  EXPECT_TRUE(store.value(PreviousVisit::Summary).isEmpty());
  store.take([](const QString&) { return u"前"_s; });
  store.take([](const QString& column) { return column == u"治療概略" ? u"今"_s : QString(); });
  EXPECT_EQ(store.value(PreviousVisit::Summary), u"今"_s);
  EXPECT_TRUE(store.value(PreviousVisit::Name).isEmpty());
}

TEST(PreviousVisitStore, OnlyDiseasesHistoryAndComplaintAreCarriedAtOnce) {
  QStringList columns;
  for (const int slot : PreviousVisit::carriedAtOnce()) columns << PreviousVisit::column(slot);
  EXPECT_EQ(columns,
            (QStringList{u"氏名"_s, u"生年月日"_s, u"ETC1"_s, u"d1"_s, u"d4"_s, u"d7"_s, u"d2"_s, u"d5"_s,
                         u"d8"_s, u"d3"_s, u"d6"_s, u"d9"_s, u"memodummy21"_s, u"memodummy22"_s}));
}

}  // namespace
}  // namespace records

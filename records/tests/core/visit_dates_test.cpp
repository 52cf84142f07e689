#include "records/core/visit_dates.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/store/database.h"
#include "platform/text/clock.h"

namespace records {
namespace {

using namespace Qt::Literals::StringLiterals;
using frame::EraCapability;

class VisitDatesTest : public testing::Test {
 protected:
  frame::EraDates era(EraCapability capability = EraCapability::Supported) const {
    return frame::EraDates(capability, m_clock);
  }
  text::FixedClock m_clock{QDate(2024, 11, 5)};
};

TEST_F(VisitDatesTest, ShadowIsTheWesternForm) {
  const std::pair<const char16_t*, const char16_t*> cases[] = {
      {u"令和6年10月1日", u"2024/10/1"}, {u"令和元年5月1日", u"2019/5/1"}, {u"平成31年4月30日", u"2019/4/30"},
      {u"昭和64年1月7日", u"1989/1/7"},  {u"2024/9/5", u"2024/9/5"},       {u"2024/09/05", u"2024/9/5"},
      {u"R6/10/1", u"2024/10/1"},        {u"r06/10/1", u"2024/10/1"},
  };
  for (const EraCapability capability : {EraCapability::Supported, EraCapability::Unsupported})
    for (const auto& [typed, shadow] : cases)
      EXPECT_EQ(visitDateShadow(QString::fromUtf16(typed), era(capability)).value_or(u"none"_s).toStdString(),
                QString::fromUtf16(shadow).toStdString())
          << QString::fromUtf16(typed).toStdString() << int(capability);
}

TEST_F(VisitDatesTest, WhatCannotBeReadHasNoShadow) {
  for (const EraCapability capability : {EraCapability::Supported, EraCapability::Unsupported})
    for (const QString& typed : {u""_s, u"来週"_s, u"令和6年2月30日"_s, u"R6"_s})
      EXPECT_FALSE(visitDateShadow(typed, era(capability))) << typed.toStdString();
}

TEST_F(VisitDatesTest, TodayIsGivenInTheEraOfToday) {
  for (const EraCapability capability : {EraCapability::Supported, EraCapability::Unsupported}) {
    EXPECT_EQ(todayText(era(capability)), u"令和6年11月5日"_s);
    EXPECT_EQ(presentMonthText(era(capability)), u"令和6年11月"_s);
  }
  m_clock.set(QDate(2019, 4, 3));
  EXPECT_EQ(presentMonthText(era()), u"平成31年4月"_s);
}

class DatePassTest : public VisitDatesTest {
 protected:
  store::RecordSet open() const {
    return std::move(store::RecordSet::open(store::Database::open(m_path).value(), u"カルテ"_s).value());
  }
  void add(const QString& date, const QString& shadow = {}) {
    store::RecordSet rows = open();
    ASSERT_TRUE(rows.addNew());
    ASSERT_TRUE(rows.setValue(u"治療日時"_s, date));
    ASSERT_TRUE(rows.setValue(u"治療日チェック"_s, shadow));
    ASSERT_TRUE(rows.update());
  }
  QStringList column(const QString& name) const {
    const store::RecordSet rows = open();
    QStringList values;
    for (int row = 0; row < rows.recordCount(); ++row) values << rows.valueAt(row, name);
    return values;
  }
  void SetUp() override { ASSERT_TRUE(store::createFresh(m_path, u"カルテ2データ2000.mdb"_s)); }

  QTemporaryDir m_folder;
  const QString m_path = m_folder.filePath(u"カルテ2データ2000.mdb"_s);
};

TEST_F(DatePassTest, OnlyTheShadowIsRewritten) {
  const QStringList typed{u"令和6年10月1日"_s, u""_s, u"来週"_s, u"R6/11/2"_s, u"2024/3/4"_s};
  add(typed[0], u"古い"_s);
  add(typed[1], u"残る"_s);
  add(typed[2], u"残る"_s);
  add(typed[3]);
  add(typed[4]);
  store::RecordSet view = open();
  view.moveNext();
  const store::Bookmark place = view.bookmark();
  ASSERT_TRUE(passVisitDates(view, era()));
  EXPECT_EQ(view.bookmark(), place);
  EXPECT_EQ(column(u"治療日時"_s), typed);
  EXPECT_EQ(column(u"治療日チェック"_s),
            (QStringList{u"2024/10/1"_s, u"残る"_s, u"残る"_s, u"2024/11/2"_s, u"2024/3/4"_s}));
}

TEST_F(DatePassTest, OnlyTheRowsOfTheViewAreVisited) {
  add(u"令和6年10月1日"_s);
  add(u"令和5年10月1日"_s);
  store::RecordSet all = open();
  all.setFilter(u"治療日時 like '令和5*' "_s);
  auto view = all.openRecordset();
  ASSERT_TRUE(view);
  ASSERT_TRUE(passVisitDates(*view, era()));
  EXPECT_EQ(column(u"治療日チェック"_s), (QStringList{u""_s, u"2023/10/1"_s}));
}

TEST_F(DatePassTest, AnEmptyViewDoesNothing) {
  store::RecordSet view = open();
  EXPECT_TRUE(passVisitDates(view, era()));
}

}  // namespace
}  // namespace records

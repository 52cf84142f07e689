#include "office/core/booking_book.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/store/bulk.h"
#include "platform/store/database.h"

namespace office {
namespace {

using namespace Qt::Literals::StringLiterals;
using Columns = QHash<QString, store::Value>;

class BookingBook : public testing::Test {
 protected:
  BookingBook() {
    EXPECT_TRUE(store::createFresh(patients, u"臨床QV2000N.mdb"_s));
    EXPECT_TRUE(store::createFresh(bookings, u"予約2000.mdb"_s));
  }
  void add(const QString& path, const QString& table, const Columns& columns) {
    ASSERT_TRUE(store::addRows(path, table, 1, [&](int) { return columns; }).ok());
  }
  void book(const QString& year, const QString& month, const QString& day, const QString& time) {
    add(bookings, u"予約"_s,
        {{u"予約年"_s, year}, {u"予約月"_s, month}, {u"予約日"_s, day}, {u"予約時間"_s, time}});
  }
  QStringList timesOf(const frame::DayAsked& day) {
    auto rows = store::RecordSet::open(store::Database::open(bookings).value(), u"予約"_s);
    auto hits = bookingsOf(*rows, day);
    EXPECT_TRUE(hits.ok());
    QStringList times;
    for (int i = 0; i < hits->recordCount(); ++i) times += hits->valueAt(i, u"予約時間"_s);
    return times;
  }
  QString serial(QDate today) { return nextBookingSerial(patients, bookings, today).value(); }

  QTemporaryDir folder;
  const QString patients = folder.filePath(u"臨床QV2000N.mdb"_s);
  const QString bookings = folder.filePath(u"予約2000.mdb"_s);
  const QDate today{2024, 6, 15};
};

TEST_F(BookingBook, ADayIsYearMonthAndDayExactly) {
  book(u"2024"_s, u"6"_s, u"15"_s, u"9 時 0 分"_s);
  book(u"2024"_s, u"6"_s, u"5"_s, u"1 時 0 分"_s);
  book(u"2024"_s, u"16"_s, u"15"_s, u"2 時 0 分"_s);
  book(u"2025"_s, u"6"_s, u"15"_s, u"3 時 0 分"_s);
  EXPECT_EQ(timesOf({2024, 6, 15}), QStringList(u"9 時 0 分"_s));
  EXPECT_EQ(timesOf({2024, 6, 1}), QStringList());
}

TEST_F(BookingBook, TimesAreSortedAsTexts) {
  for (const QString& time : {u"9 時 0 分"_s, u"10 時 0 分"_s, u"14 時 30 分"_s, u"8 時 0 分"_s})
    book(u"2024"_s, u"6"_s, u"15"_s, time);
  EXPECT_EQ(timesOf({2024, 6, 15}),
            QStringList({u"10 時 0 分"_s, u"14 時 30 分"_s, u"8 時 0 分"_s, u"9 時 0 分"_s}));
}

TEST_F(BookingBook, AnImpossibleDayIsFoundAsItWasBooked) {
  book(u"2024"_s, u"2"_s, u"31"_s, u"9 時 0 分"_s);
  EXPECT_EQ(timesOf({2024, 2, 31}).size(), 1);
  EXPECT_EQ(timesOf({2024, 3, 2}).size(), 0);
}

TEST_F(BookingBook, TheSetItSearchesStaysWhole) {
  book(u"2024"_s, u"6"_s, u"15"_s, u"9 時 0 分"_s);
  book(u"2024"_s, u"6"_s, u"16"_s, u"9 時 0 分"_s);
  auto rows = store::RecordSet::open(store::Database::open(bookings).value(), u"予約"_s);
  ASSERT_TRUE(bookingsOf(*rows, {2024, 6, 15}).ok());
  EXPECT_EQ(rows->recordCount(), 2);
  EXPECT_EQ(rows->openRecordset()->recordCount(), 2) << "no filter remains";
}

TEST_F(BookingBook, SerialBeginsTheDayWhereBothTablesAreEmpty) { EXPECT_EQ(serial(today), u"20240615001"_s); }

TEST_F(BookingBook, SerialBeginsTheDayAfterEarlierDays) {
  add(patients, u"臨床QV"_s, {{u"テキスト5"_s, u"20240614007"_s}});
  add(bookings, u"予約"_s, {{u"テキスト1"_s, u"20240613002"_s}});
  EXPECT_EQ(serial(today), u"20240615001"_s);
}

TEST_F(BookingBook, SerialGoesOnFromTheGreaterOfTheTwo) {
  add(patients, u"臨床QV"_s, {{u"テキスト5"_s, u"20240615004"_s}});
  add(bookings, u"予約"_s, {{u"テキスト1"_s, u"20240615002"_s}});
  EXPECT_EQ(serial(today), u"20240615005"_s);
  add(bookings, u"予約"_s, {{u"テキスト1"_s, u"20240615009"_s}});
  EXPECT_EQ(serial(today), u"20240615010"_s);
}

TEST_F(BookingBook, SerialLooksAtTheLastRowOnly) {
  add(bookings, u"予約"_s, {{u"テキスト1"_s, u"20240615009"_s}});
  add(bookings, u"予約"_s, {{u"テキスト1"_s, u"20240101001"_s}});
  EXPECT_EQ(serial(today), u"20240615001"_s);
}

TEST_F(BookingBook, SerialTakesNoRowWithoutADigitForTheGreater) {
  add(patients, u"臨床QV"_s, {{u"テキスト5"_s, u"なし"_s}});
  add(bookings, u"予約"_s, {{u"テキスト1"_s, u"20240615002"_s}});
  EXPECT_EQ(serial(today), u"20240615003"_s);
}

TEST_F(BookingBook, AMissingFileIsAFaultByName) {
  ASSERT_TRUE(QFile::remove(patients));
  const auto missing = nextBookingSerial(patients, bookings, today);
  ASSERT_FALSE(missing.ok());
  EXPECT_TRUE(missing.fault().message.contains(u"臨床QV2000N.mdb"_s))
      << missing.fault().message.toStdString();
}

}  // namespace
}  // namespace office

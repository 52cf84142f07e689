#include "office/core/booking.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/screen/testing/print_text.h"
#include "platform/store/database.h"

namespace office {
namespace {

using namespace Qt::Literals::StringLiterals;

struct BookingColumn {
  QString column;
  QString Booking::*text;
};
const BookingColumn kColumns[] = {
    {u"予約NO"_s, &Booking::number},        {u"患者NO"_s, &Booking::patientNumber},
    {u"予約患者"_s, &Booking::patientName}, {u"テキスト1"_s, &Booking::patientSerial},
    {u"予約年"_s, &Booking::year},          {u"予約月"_s, &Booking::month},
    {u"予約日"_s, &Booking::day},           {u"予約曜日"_s, &Booking::weekday},
    {u"予約時間"_s, &Booking::time},        {u"日時1"_s, &Booking::dateShadow},
    {u"登録日時"_s, &Booking::stamp},       {u"メモ1"_s, &Booking::memo}};

class BookingRow : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(store::createFresh(path(), u"予約2000.mdb"_s)); }
  QString path() const { return folder.filePath(u"予約2000.mdb"_s); }
  store::RecordSet open() const {
    return std::move(store::RecordSet::open(store::Database::open(path()).value(), u"予約"_s).value());
  }
  QTemporaryDir folder;
};

TEST_F(BookingRow, IsReadFromItsColumns) {
  store::RecordSet rows = open();
  ASSERT_TRUE(rows.addNew());
  for (const BookingColumn& each : kColumns) ASSERT_TRUE(rows.setValue(each.column, u"値 "_s + each.column));
  ASSERT_TRUE(rows.update());
  rows.moveFirst();
  const Booking booking = store::readRecord<Booking>(rows);
  for (const BookingColumn& each : kColumns) EXPECT_EQ(booking.*each.text, u"値 "_s + each.column);
}

TEST_F(BookingRow, IsWrittenIntoItsColumns) {
  Booking booking;
  for (const BookingColumn& each : kColumns) booking.*each.text = u"値 "_s + each.column;
  store::RecordSet rows = open();
  ASSERT_TRUE(rows.addNew());
  ASSERT_TRUE(store::writeRecord(rows, booking));
  ASSERT_TRUE(rows.update());
  for (const BookingColumn& each : kColumns)
    EXPECT_EQ(open().valueAt(0, each.column), u"値 "_s + each.column);
}

}  // namespace
}  // namespace office

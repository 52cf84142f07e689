#include "office/core/booking_book.h"

#include "platform/store/database.h"
#include "records/core/patient_serial.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Value of the table's last row, blank where it has none.
store::Result<QString> lastValue(const QString& path, const QString& table, const QString& column) {
  auto database = store::Database::open(path);
  if (!database) return database.fault();
  auto rows = store::RecordSet::open(*database, table);
  if (!rows) return rows.fault();
  if (const store::Done read = rows->moveAndRead(&store::RecordSet::moveLast); !read) return read.fault();
  return rows->value(column);
}

}  // namespace

store::Result<store::RecordSet> bookingsOf(store::RecordSet& rows, const frame::DayAsked& day) {
  // The rows are the same in any order; the day leaves the fewest for the next filter to read.
  const std::pair<const char16_t*, int> filters[] = {
      {u"予約日", day.day}, {u"予約月", day.month}, {u"予約年", day.year}};
  std::optional<store::RecordSet> hits;
  for (const auto& [column, number] : filters) {
    store::RecordSet& from = hits ? *hits : rows;
    from.setFilter(u"%1 like %2"_s.arg(QString::fromUtf16(column)).arg(number));
    auto narrowed = from.openRecordset();
    from.setFilter(QString());
    if (!narrowed) return narrowed.fault();
    hits = std::move(*narrowed);
  }
  hits->setSort(u"予約時間 ASC"_s);
  return hits->openRecordset();
}

store::Result<QString> nextBookingSerial(const QString& patientsPath, const QString& bookingsPath,
                                         QDate today) {
  const auto patient = lastValue(patientsPath, u"臨床QV"_s, u"テキスト5"_s);
  if (!patient) return patient.fault();
  const auto booking = lastValue(bookingsPath, u"予約"_s, u"テキスト1"_s);
  if (!booking) return booking.fault();
  const bool fromPatients = patient->toLongLong() >= booking->toLongLong();
  return records::nextSerial(fromPatients ? *patient : *booking, today);
}

}  // namespace office

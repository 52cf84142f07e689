#include "office/core/booking_book.h"

#include "platform/store/database.h"
#include "platform/store/tables/bookings.h"
#include "platform/store/tables/patients.h"
#include "platform/text/utf16.h"
#include "records/core/patient_serial.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Value of the table's last row, blank if it has none.
store::Result<QString> lastValue(const QString& path, const store::Column& column) {
  auto database = store::Database::open(path);
  if (!database) return database.fault();
  auto rows = store::RecordSet::open(*database, text::utf16(column.table().name()));
  if (!rows) return rows.fault();
  if (const store::Done read = rows->moveAndRead(&store::RecordSet::moveLast); !read) return read.fault();
  return rows->value(column);
}

}  // namespace

store::Result<store::RecordSet> bookingsOf(store::RecordSet& rows, const frame::DayAsked& day) {
  // The rows are the same in any order; the day leaves the fewest for the next filter to read.
  const std::pair<store::Column, int> filters[] = {
      {bookings::day, day.day}, {bookings::month, day.month}, {bookings::year, day.year}};
  std::optional<store::RecordSet> hits;
  for (const auto& [column, number] : filters) {
    store::RecordSet& from = hits ? *hits : rows;
    from.setFilter(u"%1 like %2"_s.arg(column.text()).arg(number));
    auto narrowed = from.openRecordset();
    from.setFilter(QString());
    if (!narrowed) return narrowed.fault();
    hits = std::move(*narrowed);
  }
  hits->setSort(bookings::time + u" ASC"_s);
  return hits->openRecordset();
}

store::Result<QString> nextBookingSerial(const QString& patientsPath, const QString& bookingsPath,
                                         QDate today) {
  const auto patient = lastValue(patientsPath, patients::serial);
  if (!patient) return patient.fault();
  const auto booking = lastValue(bookingsPath, bookings::patientSerial);
  if (!booking) return booking.fault();
  const bool fromPatients = patient->toLongLong() >= booking->toLongLong();
  return records::nextSerial(fromPatients ? *patient : *booking, today);
}

}  // namespace office

#include "tools/bench/day_rows.h"

#include "frame/core/era_date.h"
#include "platform/store/bulk.h"
#include "platform/store/tables/bookings.h"
#include "platform/store/tables/visits.h"
#include "tools/bench/bench_rows.h"

namespace bench {
namespace {

constexpr int kYears = 20;
constexpr int kBookingsADay = 40;

class LastDayClock final : public text::Clock {
 public:
  QDateTime now() const override { return kLastDay.startOfDay(); }
};

/// What visits of a patient and of a day carry, made once.
struct Texts {
  QStringList keys, names, births;
  QStringList eraDays, westernDays;

  Texts(int patients, int days) {
    const LastDayClock clock;
    const frame::EraDates eras(frame::EraCapability::Supported, clock);
    for (int patient = 0; patient < patients; ++patient) {
      keys += patientKey(patient);
      names += patientName(patient);
      births += patientBirth(patient);
    }
    for (int day = 1 - days; day <= 0; ++day) {
      const QDate date = kLastDay.addDays(day);
      eraDays += eras.formatEra(date);
      westernDays += date.toString(QStringLiteral("yyyy/M/d"));
    }
  }
};

int drawn(int number, quint32 purpose, qsizetype among) {
  return static_cast<int>(lot(number, purpose) % static_cast<quint32>(among));
}

}  // namespace

store::Done addVisits(const QString& path, const QString& table, int count, int patients) {
  const QStringList columns = {visits::patientSerial, visits::name,        visits::birth, visits::date,
                               visits::dateShadow,    visits::summary,     visits::fee,   visits::share,
                               visits::insurerPays,   visits::receiptDone, visits::isNew};
  const Texts texts(std::max(patients, 1), kYears * 365);
  const QString note = QStringLiteral("腰部の施術。前回の後に変わりはない。");
  const QString yes = QStringLiteral("-1"), no = QStringLiteral("0");
  return store::addRows(path, table, columns, count, [&](int number, QStringList& values) {
    const int patient = drawn(number, 30, texts.keys.size());
    const auto day = static_cast<qsizetype>(qint64(number) * texts.eraDays.size() / count);
    const int share = 10 * (20 + drawn(number, 32, 60));
    values = {texts.keys[patient],
              texts.names[patient],
              texts.births[patient],
              texts.eraDays[day],
              texts.westernDays[day],
              note,
              QString::number(share * 10 / 3),
              QString::number(share),
              QString::number(share * 7 / 3),
              drawn(number, 33, 2) ? yes : no,
              drawn(number, 34, 50) ? no : yes};
  });
}

store::Done addBookings(const QString& path, const QString& table, int count, int patients) {
  const QStringList columns = {bookings::number, bookings::patientNumber, bookings::patientName,
                               bookings::year,   bookings::month,         bookings::day,
                               bookings::time,   bookings::patientSerial};
  const QDate first = kLastDay.addDays(2 * 365 - count / kBookingsADay);
  return store::addRows(path, table, columns, count, [&](int number, QStringList& values) {
    const int patient = drawn(number, 35, std::max(patients, 1));
    const QDate day = first.addDays(number / kBookingsADay);
    values = {QString::number(number + 1),
              QString::number(patient + 1),
              patientName(patient),
              QString::number(day.year()),
              QString::number(day.month()),
              QString::number(day.day()),
              QStringLiteral("%1 時 %2 分").arg(8 + drawn(number, 36, 12)).arg(drawn(number, 37, 60)),
              patientKey(patient)};
  });
}

}  // namespace bench

#pragma once

#include <QDate>

#include "platform/store/record_set.h"

namespace bench {

/// The last day of the rows below; they fill the twenty years before it, day by day.
inline const QDate kLastDay(2024, 12, 31);

/// Adds visits in the order of their days, each of a patient drawn by lot.
store::Done addVisits(const QString& path, const QString& table, int count, int patients);
/// Adds bookings alike, up to two years behind the last day, some forty a day.
store::Done addBookings(const QString& path, const QString& table, int count, int patients);

}  // namespace bench

#pragma once

#include <QDate>
#include <QString>

#include "frame/core/run_state.h"
#include "platform/store/record_set.h"

namespace office {

/// The bookings of a day among the rows of the set, in the order of their times; an empty set if there are
/// none.
///
/// Kept: year, month and day are compared one by one, as they were typed, so that a booking of 31 February is
/// found as such and not in March; and times are sorted as texts: 10 時 comes before 9 時.
store::Result<store::RecordSet> bookingsOf(store::RecordSet& rows, const frame::DayAsked& day);

/// PatientSerial for a booked person who has none yet: patients and bookings share one series, which goes on
/// from the greater of the two tables' last rows. Both files are read afresh, since another computer may have
/// added to them; read without a lock, so that two computers may make the same serial.
store::Result<QString> nextBookingSerial(const QString& patientsPath, const QString& bookingsPath,
                                         QDate today);

}  // namespace office

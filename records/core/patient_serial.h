#pragma once

#include <QDate>
#include <QString>

namespace records {

/// PatientSerial (column テキスト5) of a new patient: the date of entry as yyyymmdd and a three-digit running
/// number of that day. `last` is the serial of the last record of the table, blank if there is none.
///
/// The running number is raised by numeric addition of the whole serial, so the thousandth patient of a day
/// rolls the date part over; it must, as charts and claims of such keys exist.
QString nextSerial(const QString& last, QDate today);

/// The three address lines one after the other, as a new claim takes them: 39 characters, the rest is cut.
QString joinedAddress(const QString& line1, const QString& line2, const QString& line3);

}  // namespace records

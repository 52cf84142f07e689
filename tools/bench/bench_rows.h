#pragma once

#include <QHash>
#include <QString>

namespace bench {

using Row = QHash<QString, QString>;

// Rows of the tables by number from 0, the same at every run. Names are invented words; readings differ in
// nearly every row, as in a real register.
Row patientRow(int number);
Row visitRow(int number, int patients);
Row firstHalfRow(int number, int patients);
Row secondHalfRow(int number);

/// The patient's key that visits and claims carry.
QString patientKey(int patient);

}  // namespace bench

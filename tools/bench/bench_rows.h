#pragma once

#include <QHash>
#include <QString>

namespace bench {

using Row = QHash<QString, QString>;

// Rows of the tables by number from 0, the same at every run. Names are invented words; readings differ in
// nearly every row, as in a real register.
Row patientRow(int number);
Row firstHalfRow(int number, int patients);
Row secondHalfRow(int number);

/// The patient's key that visits and claims carry, the name and the birthday.
QString patientKey(int patient);
QString patientName(int patient);
QString patientBirth(int patient);

/// A number that looks drawn by lot and depends on the row and the purpose alone.
quint32 lot(int number, quint32 purpose);

}  // namespace bench

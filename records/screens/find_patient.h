#pragma once

#include <QString>

namespace screen {
class Screen;
}

namespace records {

/// Settles the row on view of a patient screen before it moves away: a pending edit is written, a new row
/// that was not stored is dropped. False: a fault was told, the row stays.
bool settlePatientRow(screen::Screen& patients);

/// Moves the patient screen to the next row that meets the criteria, from the row on view and round the
/// end. Nothing found is told under the title "Not found", a criteria that the engine refuses in its own
/// words; either way the row on view is restored and false returned.
bool findPatient(screen::Screen& patients, const QString& criteria);

}  // namespace records

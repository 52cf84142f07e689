#pragma once

#include <QSet>
#include <QString>
#include <QVector>

#include "claims/core/claim_record.h"
#include "platform/screen/rows.h"

namespace screen {
class Screen;
}

namespace claims {

/// A control of the claim form that shows a column of either half.
struct BoundControl {
  enum class Kind { Text, Tick, Choice };
  QString control;
  QString column;
  int half = 1;
  Kind kind = Kind::Text;
  QString on, off;  ///< stored texts of a tick
};

/// The bound controls of a screen's rows, families expanded, in the order of the rows.
QVector<BoundControl> boundControls(screen::Rows rows);

/// The claim as it stands on the form: `read` with what the controls show in place of what they were given.
/// A control that shows what was read leaves the stored value as it is, so that NULL stays NULL.
ClaimRecord recordOf(const screen::Screen& form, const QVector<BoundControl>& controls,
                     const ClaimRecord& read);
/// Shows the values of `claim` in the controls of the given columns (all where none are named).
void showRecord(screen::Screen& form, const QVector<BoundControl>& controls, const ClaimRecord& claim,
                const QSet<QString>& columns = {});

}  // namespace claims

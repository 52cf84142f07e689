#pragma once

#include <QString>

#include "claims/core/claim_record.h"
#include "claims/core/form_ticks.h"

namespace claims {

/// What the claim screens ask of printing. The program hands it in at start.
class ClaimPrinting {
 public:
  virtual ~ClaimPrinting() = default;
  /// Name of the printing screen that 鍼灸印刷 and あマ印刷 open for the claim, by its month, the clinic's
  /// prefecture and association, and 公費の印刷. Blank where the month cannot be read.
  virtual QString screenOf(const ClaimRecord& claim, const FormTicks& ticks) const = 0;
  /// Shows the printer's own dialog for the window (プリンターオプション).
  virtual void setUpPrinter(quintptr window) = 0;
};

}  // namespace claims

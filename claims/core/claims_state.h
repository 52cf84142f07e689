#pragma once

#include <QString>

#include "claims/core/claim_printing.h"
#include "claims/core/claim_record.h"
#include "claims/core/print_kind.h"
#include "frame/core/patient.h"

namespace claims {

/// What the claim form shows at this moment, for the screens that print, compute and list.
class ClaimOnDisplay {
 public:
  virtual ~ClaimOnDisplay() = default;
  /// All columns as the form shows them.
  virtual ClaimRecord record() const = 0;
  /// The form's ticks for printing.
  virtual FormTicks checks() const = 0;
  /// Window handle for the report engine.
  virtual quintptr window() const = 0;
  /// Puts a text into the form's field of a column, as the helper windows do; only 登録 stores it.
  virtual void put(const store::Column& column, const QString& text) {
    Q_UNUSED(column)
    Q_UNUSED(text)
  }
};

/// Run-wide values of the claim screens, one copy.
struct ClaimsState {
  ClaimOnDisplay* display = nullptr;             ///< the open claim form, nullptr where none is open
  PrintKind printKind = PrintKind::Acupuncture;  ///< of the print button that was pressed last
  ClaimPrinting* printing = nullptr;             ///< set at start
  frame::Patient newClaim;                       ///< whose claim 新規レセプト asks to make
};

}  // namespace claims

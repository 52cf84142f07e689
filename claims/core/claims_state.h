#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include "claims/core/claim_record.h"
#include "claims/core/print_chooser.h"
#include "frame/core/patient.h"

namespace claims {

/// What the claim form shows at this moment, for the screens that print, compute and list.
class ClaimOnDisplay {
 public:
  virtual ~ClaimOnDisplay() = default;
  /// All columns as they stand on the screen.
  virtual ClaimRecord record() const = 0;
  /// Names of the unbound check boxes that are set: Check13, Check7, Check8 ...
  virtual QSet<QString> checks() const = 0;
  /// Runs the trimming of the form's texts with its message and red captions.
  virtual void trimForPrint() = 0;
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
  ClaimOnDisplay* display = nullptr;     ///< the open claim form, nullptr where none is open
  QString claimCheck;                    ///< "" or "break": the mark of the last check
  int previewKind = 0;                   ///< 1..6: the fee preview that is open
  int printKind = 0;                     ///< PrintKind: 1 acupuncture button, 2 massage button
  PrintScreenChooser choosePrintScreen;  ///< of printing, set at start
  PrinterSetup printerSetup;             ///< the printer's dialog, set at start
  frame::Patient newClaim;               ///< whose claim 新規レセプト asks to make
};

}  // namespace claims

#pragma once

#include <QSet>
#include <QString>

#include "claims/core/claim_record.h"
#include "frame/core/clinic_profile.h"

namespace printing {

/// PrintKind of a single print: from the acupuncture or from the massage button.
enum class PrintKind { Acupuncture = 1, Massage = 2 };

/// Everything that the mapping of a claim form reads: the claim, the practice, and what the claim form and
/// the printing screen have chosen. Whoever prints makes one: the claim form for the claim on display, the
/// month run for each row, a check without screens from plain data.
struct PrintSource {
  claims::ClaimRecord claim;
  /// The practice, with the print flags and licence numbers of the settings file in their slots.
  frame::ClinicProfile profile;
  QString prefecture;  ///< "01" to "47"
  QString aichi;       ///< "3" or "4"
  QString tokyo;       ///< "5" or "6"
  PrintKind kind = PrintKind::Acupuncture;
  QString option;              ///< edition chosen on the printing screen: "Option9"
  QSet<QString> screenChecks;  ///< ticks of the printing screen: "Check6"
  QSet<QString> claimChecks;   ///< unbound ticks of the claim form: "Check8", "Check50"
  bool itemsOnly = false;      ///< 項目のみ印刷: the paper is printed already

  bool acupuncture() const { return kind == PrintKind::Acupuncture; }
};

}  // namespace printing

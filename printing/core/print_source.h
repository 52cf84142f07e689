#pragma once

#include <QString>

#include "claims/core/claim_record.h"
#include "claims/core/form_ticks.h"
#include "claims/core/print_kind.h"
#include "frame/core/clinic_profile.h"
#include "frame/core/prefecture.h"
#include "frame/core/submission.h"
#include "printing/core/print_ticks.h"

namespace printing {

using claims::PrintKind;

/// Everything that the mapping of a claim form reads: the claim, the clinic, and what the claim form and the
/// printing screen have chosen. Whoever prints makes one: the claim form for the claim on display, the month
/// run for each row, a check without screens from plain data.
struct PrintSource {
  claims::ClaimRecord claim;
  /// The clinic's profile, with the print flags and licence numbers of the settings file in their slots.
  frame::ClinicProfile profile;
  frame::Prefecture prefecture = frame::Prefecture::None;
  frame::AichiSubmission aichi = frame::AichiSubmission::AcupunctureMassageAssociation;
  frame::TokyoSubmission tokyo = frame::TokyoSubmission::NonMember;
  PrintKind kind = PrintKind::Acupuncture;
  Edition edition = Edition::None;  ///< chosen on the printing screen
  PrintTicks ticks;                 ///< of the printing screen
  claims::FormTicks form;           ///< of the claim form

  bool acupuncture() const { return kind == PrintKind::Acupuncture; }
};

}  // namespace printing

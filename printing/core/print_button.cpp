#include "printing/core/print_button.h"

#include "platform/store/tables/claims.h"
#include "printing/core/screen_choice.h"

namespace printing {

std::optional<PrintScreen> printScreenOf(const claims::ClaimRecord& claim, const claims::FormTicks& ticks,
                                         const frame::RunState& run) {
  const auto month = run.eraDates().claimMonthToDate(claim.get(claim::month));
  if (!month) return std::nullopt;
  return choosePrintScreen({*month, frame::prefectureOf(run.prefectureCode),
                            frame::aichiSubmissionOf(run.aichiSubmission), ticks.publicAid});
}

QString PrintButtons::screenOf(const claims::ClaimRecord& claim, const claims::FormTicks& ticks) const {
  const std::optional<PrintScreen> screen = printScreenOf(claim, ticks, m_run);
  return screen ? nameOf(*screen) : QString();
}

}  // namespace printing

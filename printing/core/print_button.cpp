#include "printing/core/print_button.h"

#include "printing/core/screen_choice.h"

namespace printing {

QString printScreenOf(const claims::ClaimRecord& claim, const QSet<QString>& checks,
                      const frame::RunState& run) {
  const auto month = run.eraDates().claimMonthToDate(claim.get(QStringLiteral("申請年月")));
  if (!month) return QString();
  return printScreen(
      {*month, run.prefectureCode, run.aichiSubmission, checks.contains(QStringLiteral("Check7"))});
}

claims::PrintScreenChooser printScreenChooser(const frame::RunState& run) {
  return [&run](const claims::ClaimRecord& claim, const QSet<QString>& checks) {
    return printScreenOf(claim, checks, run);
  };
}

}  // namespace printing

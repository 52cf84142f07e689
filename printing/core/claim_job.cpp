#include "printing/core/claim_job.h"

#include "printing/core/claim_form_900.h"
#include "printing/core/template_choice.h"

namespace printing {

QString claimTitle(PrintKind kind) {
  return kind == PrintKind::Acupuncture ? QStringLiteral("申請書鍼") : QStringLiteral("申請書マ");
}

void addClinicData(PrintSource& source, const frame::RunState& run) {
  source.profile = run.profile;
  // These slots belong to a screen of their own and are kept beside the profile.
  for (const int slot : {frame::slot::kPrintLicence, frame::slot::kLicenceHari, frame::slot::kLicenceKyu,
                         frame::slot::kLicenceMassage})
    source.profile[slot] = run.settings[slot];
  source.prefecture = frame::prefectureOf(run.prefectureCode);
  source.aichi = frame::aichiSubmissionOf(run.aichiSubmission);
  source.tokyo = frame::tokyoSubmissionOf(run.tokyoSubmission);
}

PrintJob claimJob(const PrintSource& source, PrintScreen screen, const frame::EraDates& dates) {
  PrintJob job;
  job.title = claimTitle(source.kind);
  job.itemsOnly = source.form.itemsOnly;
  job.chooseTemplate = [&source, screen](int) {
    const auto choice = chooseTemplate(screen, source);
    return choice ? choice->fileName : QString();
  };
  job.afterFrame = [&source](ReportFields& fields, int) { hideClaim900(fields, source); };
  job.fill = [&source, &dates](ReportFields& fields, int) { fillClaim900(fields, source, dates); };
  return job;
}

}  // namespace printing

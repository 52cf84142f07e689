#include "printing/contract/print_run.h"

#include <QDir>

namespace printing {

namespace {

/// Loads, fills and plays one page; false when its template is not to be had.
bool playPage(report::ReportOperations& engine, const PrintJob& job, int page) {
  if (engine.PR_LoadReport(0, 0, job.chooseTemplate(page)) != 0) return false;
  ReportFields fields(engine);
  if (job.itemsOnly) fields.hideFrame();
  if (job.afterFrame) job.afterFrame(fields, page);
  job.fill(fields, page);
  engine.PR_PlayReport();
  return true;
}

}  // namespace

RunEnd runPrint(report::ReportOperations& engine, const PrintJob& job) {
  if (job.prompt && !job.prompt()) return RunEnd::Cancelled;
  if (!job.programFolder.isEmpty()) QDir::setCurrent(job.programFolder);
  if (job.prepare && !job.prepare()) return RunEnd::Broken;

  const qint64 device = engine.PR_GetPrinterDC();
  if (engine.PR_StartDC(job.window, device, job.title, report::kStartFlags) > report::kStartFailureAbove)
    return RunEnd::NotStarted;
  for (int page = 0; page < job.pages; ++page) {
    if (playPage(engine, job, page)) continue;
    engine.PR_AbortDoc();
    return RunEnd::NotLoaded;
  }
  engine.PR_EndDoc();
  if (!engine.lastDocument()) return RunEnd::NotTaken;
  if (job.cleanUp) job.cleanUp();
  return RunEnd::Printed;
}

}  // namespace printing

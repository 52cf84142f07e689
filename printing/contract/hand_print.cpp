#include "printing/contract/hand_print.h"

namespace printing {

RunEnd runHandPrint(report::ReportOperations& engine, const HandJob& job) {
  if (job.prompt && !job.prompt()) return RunEnd::Cancelled;
  const qint64 device = engine.PR_GetPrinterDC();
  if (engine.PR_StartDC(job.window, device, job.title, report::kStartFlags) > report::kStartFailureAbove)
    return RunEnd::NotStarted;
  for (int page = 0; page < job.pages; ++page) {
    job.draw(engine, page);
    engine.PR_EndPage();
  }
  engine.PR_EndDoc();
  return engine.lastDocument() ? RunEnd::Printed : RunEnd::NotTaken;
}

}  // namespace printing

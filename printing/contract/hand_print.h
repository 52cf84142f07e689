#pragma once

#include "printing/contract/print_run.h"

namespace printing {

/// A document that is drawn by hand instead of from a template: lists and labels.
struct HandJob {
  std::function<bool()> prompt;  ///< the question; true for OK
  quintptr window = 0;
  QString title;  ///< what the spooler shows
  int pages = 1;
  /// Draws one page, counted from 0; the page is ended by the run.
  std::function<void(report::ReportOperations&, int page)> draw;
};

/// One job: question, start, pages, end. Cancelled, NotStarted, NotTaken or Printed.
[[nodiscard]] RunEnd runHandPrint(report::ReportOperations& engine, const HandJob& job);

}  // namespace printing

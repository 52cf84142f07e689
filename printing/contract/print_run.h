#pragma once

#include <QString>
#include <functional>

#include "platform/report/report_operations.h"
#include "printing/contract/report_fields.h"

namespace printing {

/// What one print job is made of. Page numbers count from 0; a form of one page ignores them.
struct PrintJob {
  std::function<bool()> prompt;   ///< the question; true for OK
  QString programFolder;          ///< templates lie there; blank: left as it is
  std::function<bool()> prepare;  ///< work values; false is the mark "break"
  quintptr window = 0;            ///< of the claim form or the printing screen
  QString title;                  ///< what the spooler shows
  int pages = 1;
  std::function<QString(int page)> chooseTemplate;          ///< file name; asked after the document started
  bool itemsOnly = false;                                   ///< data alone, for paper printed already
  std::function<void(ReportFields&, int page)> afterFrame;  ///< further hides of this form, optional
  std::function<void(ReportFields&, int page)> fill;
  std::function<void()> cleanUp;  ///< after the document went out, optional; not after NotTaken
};

/// How a run ended. The run itself shows nothing of it: printing has no error dialogs of its own.
enum class RunEnd {
  Cancelled,   ///< the prompt was refused; the printing screen stays open
  Broken,      ///< the claim is not printable; the engine was not called
  NotStarted,  ///< the printer refused the document
  NotLoaded,   ///< the template could not be loaded; the document was dropped
  NotTaken,    ///< the document is finished, and the printer did not take it: lastDocument() says why
  Printed,
};

/// PrintRun: performs the ten steps of one job in their fixed order.
[[nodiscard]] RunEnd runPrint(report::ReportOperations& engine, const PrintJob& job);

}  // namespace printing

#pragma once

#include "claims/core/consent_watch.h"
#include "frame/core/run_state.h"
#include "platform/report/report_operations.h"
#include "platform/screen/run_when_activated.h"
#include "platform/screen/screen.h"

namespace printing {

/// 同意期限一ヶ月: the patients whose consent runs out within a month, on the screen and on paper. The list
/// is read at each opening, and how many there are is said.
class ConsentWatchScreen : public screen::Screen {
 public:
  ConsentWatchScreen(screen::Services& services, frame::RunState& run, report::ReportOperations& engine);

  void opened(const screen::Request& request) override;
  void onActivate() override;
  QStringList openingTexts() const override;

  void print();
  void printerOptions();
  void finish();

 private:
  frame::RunState& m_run;
  report::ReportOperations& m_engine;
  QList<claims::ConsentEnd> m_rows;
  screen::RunWhenActivated m_whenActivated;
  bool m_openedBefore = false;
};

}  // namespace printing

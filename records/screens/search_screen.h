#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace records {

/// The search dialog: the way from the main menu to a patient. A name that is handed over
/// (routes::PatientSearch) waits in its field for Enter.
class SearchScreen : public screen::Screen {
 public:
  SearchScreen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void opened(const screen::Request& request) override;

  void search();
  void newPatient();
  void cancel();

 private:
  /// The patient screen with its rows open; nullptr if the table cannot be opened, which was reported.
  Screen* openedRegister();
  void showEmptyNotice();
  QString criteria(const QString& word) const;
  frame::RunState& m_run;
};

}  // namespace records

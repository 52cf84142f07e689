#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace records {

/// The search dialog: the way from the main menu to a patient.
///
/// Request keys: "氏名" (a name to search for; Enter then finds it).
class SearchScreen : public screen::Screen {
 public:
  SearchScreen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void opened(const screen::Request& request) override;

  void search();
  void newPatient();
  void cancel();

 private:
  /// The patient screen with its rows open; nullptr where the table cannot be opened (told by then).
  Screen* patients();
  void showEmptyNotice();
  QString criteria(const QString& word) const;
  frame::RunState& m_run;
};

}  // namespace records

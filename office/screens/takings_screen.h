#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/list_screen.h"
#include "platform/screen/run_when_activated.h"

namespace office {

/// 集計: the visits of all patients, narrowed to a day, a month or any text, and added up. Takings are no
/// table of their own: a deleted row is a deleted visit.
class TakingsScreen : public screen::ListScreen {
 public:
  TakingsScreen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  void onActivate() override;
  bool onCloseBox() override;
  QStringList openingTexts() const override;
  void rowShown(int sourceNumber) override;

  void showDay();
  void showMonth();
  void openCalendar();
  void askSort();
  void showAll();
  void showTotals();
  void openPatient();
  void removeVisit();
  void finish();

 protected:
  bool openWhole() override;
  QStringList rowOnView() const override;
  QStringList countOnView() const override;

 private:
  frame::RunState& m_run;
  screen::RunWhenActivated m_whenActivated;
};

}  // namespace office

#pragma once

#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace claims {

/// レセプト一覧表: the door to all claims. It lists the first halves, newest at the top; opening, deleting and
/// making a claim keep the second halves in step.
///
/// Request keys: "sort" (an order of the list), "criteria" (a filter, from the patient screen), "refresh".
class ClaimListScreen : public screen::Screen {
 public:
  ClaimListScreen(screen::Services& services, frame::RunState& run, ClaimsState& state);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  bool onCloseBox() override;
  void rowShown(int sourceNumber) override;

  void openClaim();
  void showAll();
  void askSort();
  void refresh();
  void search();
  void removeClaim();
  void finish();

  // Rooms around the list, opened by their names.
  void printMonth();
  void printSummary();
  void printCollective();
  void printSheets();
  void printRoutes();
  void watchConsents();
  void printBodyCharts();

 private:
  bool openWhole();
  void showPatient(const QString& criteria);
  void showSet(const QString& criteria, const QString& order);
  bool emptySet();
  QString currentId() const;

  frame::RunState& m_run;
  ClaimsState& m_state;
};

}  // namespace claims

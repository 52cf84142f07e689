#pragma once

#include <optional>

#include "claims/core/rule_dates.h"
#include "frame/core/routes.h"
#include "frame/core/run_state.h"
#include "platform/screen/list_screen.h"
#include "platform/screen/run_when_activated.h"
#include "records/core/grid_claim.h"
#include "records/core/previous_visit.h"
#include "records/core/visit.h"

namespace records {

struct DateConversion;

/// 治療台帳3 (caption カルテ): the visits of one patient, and the day grid of the patient's claim of a month.
///
/// Sources are numbered as the screen's data controls are: 1 is Data1, the visits (list DBGrid1); 2 is Data2,
/// the second half of the claims (list DBGrid3); 3 is Data3, their first half (list DBGrid2).
///
/// How it is entered: routes::VisitLedger. Back from the claim form it stays as it is.
///
/// Visits are bound: what was typed is written when the row is left, also by filters and totals. The typed
/// days of the claim are written by their own 登録, and when the claim is left; each time both halves go in
/// one transaction.
class VisitLedgerScreen : public screen::ListScreen {
 public:
  VisitLedgerScreen(screen::Services& services, frame::RunState& run, PreviousVisit& previous);

  // Life: visit_ledger_screen.cpp.
  void onLoad() override;
  void opened(const screen::Request& request) override;
  void onActivate() override;
  bool onCloseBox() override;
  QStringList openingTexts() const override;
  void rowShown(int sourceNumber) override;
  void leave();

  // One visit: visit_ledger_visit.cpp.
  void addVisit();
  void storeVisit();
  /// The menu's 登録: without the message, said only.
  void storeVisitQuietly();
  void deleteVisit();
  void fillToday();
  void copyToday();
  void copySummary();
  void copyAmounts();
  void toSeireki();
  void toWareki();

  // The list and other screens: visit_ledger_view.cpp.
  bool narrowBy(const QString& criteria) override;
  bool sortBy(const QString& order) override;
  void narrowToMonth();
  void showPatient();
  void showAll();
  void showTotals();
  void openDetail();
  void openReceipt();
  void openDetailedReceipt();

  // The day grid: visit_ledger_grid.cpp, visit_ledger_claim.cpp.
  void gridToggled();
  void toggleGrid();
  void gridMonthEntered();
  void codeLeft(int cell);
  void visitLeft(int cell);
  void storeGrid();

 protected:
  bool openWhole() override;
  QString noRowsToSortText() const override;
  QStringList rowOnView() const override;
  void setChanged(const QString& done) override;

 private:
  using Route = routes::VisitLedger;
  // What a route asks for.
  void enter(const Route::Of& patient);
  void enter(const Route::AsShown&);
  void enter(const Route::NewVisit&);

  /// A visit is on view, stored or being added.
  bool onVisit() const;
  /// Reports that there is no visit; true if there is none.
  bool noVisit();
  /// Writes what was typed in the visit on view. False: refused and reported.
  bool settleVisit() { return !source().isOpen() || source().write(); }
  bool putPatient();
  /// Says what is on view now; the list gets the focus.
  void sayView();
  void offerFirstVisit();
  /// Starts a new visit with the values.
  void startVisit(const Visit& visit);
  bool writeVisit();
  void convert(const DateConversion& conversion);
  /// The patient of the visit on view.
  frame::Patient patientOnView() const;

  // The claim of the grid.
  bool gridShown() const;
  void openGrid();
  void hideGrid();
  bool putClaims();
  void showClaim();
  void applyGridMonth();
  /// A claim is in the grid.
  bool onClaim() const { return m_claim && m_claim->id() != 0; }
  bool claimPending() const;
  claims::ClaimRecord typedClaim() const;
  /// Writes what was typed into the claim. False: refused and reported, what was typed stays.
  bool writeClaim();
  bool leaveClaim();
  void readClaimAgain();
  void handOver();

  frame::RunState& m_run;
  PreviousVisit& m_previous;
  Route::Of m_patient;                       ///< whose visits are shown
  bool m_newRowPending = false;              ///< from 新規追加 until 登録
  screen::RunWhenActivated m_whenActivated;  ///< the question for a first visit
  std::optional<GridClaim> m_claim;          ///< while the grid is shown
  claims::MonthFlags m_flags;
};

}  // namespace records

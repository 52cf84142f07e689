#pragma once

#include <QStringList>
#include <QVector>
#include <optional>

#include "claims/core/amounts.h"
#include "claims/core/checks.h"
#include "claims/core/claim_file.h"
#include "claims/core/claim_record.h"
#include "claims/core/claims_state.h"
#include "claims/core/fee_source.h"
#include "claims/core/rule_dates.h"
#include "claims/screens/claim_form_columns.h"
#include "claims/screens/claim_form_display.h"
#include "claims/screens/claim_form_lists.h"
#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace claims {

/// frmレセプトフォーム (caption 保険申請): the one place where a claim is read, changed, computed and sent to
/// printing. Source 1 is the first half, source 2 the second; both show the claim of one ID.
///
/// Opened with Request{"ID": number}, and "opener": the screen that gets the focus back at store and close
/// (治療台帳3), blank for the claim list.
///
/// Two dirty marks guard it: checkChanged (a bound tick or option) and treatmentChanged (the day grid).
/// While one stands, nothing but 登録 and 削除 goes on. Edits of text fields set neither; they are written by
/// 登録 and lost when the record is left.
class ClaimFormScreen : public screen::Screen {
 public:
  ClaimFormScreen(screen::Services& services, frame::RunState& run, ClaimsState& state);
  ~ClaimFormScreen() override;

  // Life and moves: claim_form_screen.cpp.
  void onLoad() override;
  void opened(const screen::Request& request) override;
  bool onCloseBox() override;
  void goFirst() override;
  void goPrevious() override;
  void goNext() override;
  void goLast() override;
  void closeForm();
  void removeClaim();

  // What the form shows: claim_form_show.cpp.
  /// The claim as it stands on the form, columns of both halves.
  ClaimRecord record() const;
  /// Names of the unbound ticks that are set.
  QSet<QString> checks() const;
  /// Puts a text into the field of a column, as the helper windows do; unknown columns are left.
  void put(const QString& column, const QString& text);
  const MonthFlags& flags() const { return m_flags; }
  bool treatmentChanged() const { return m_treatmentChanged; }
  void monthLeft();
  void visitTableToggled();

  // Store: claim_form_store.cpp.
  void store();
  void trimTexts();
  void printSettingChosen(int index);

  // Fields: claim_form_fields.cpp.
  void codeLeft(int day);
  void visitLeft(int day);
  void gridEdited();
  void refillBoxes();
  void insurerNumberLeft();
  void insurerNameChosen();
  void insurerNumberChosen();
  void doctorChosen();
  void consentReceiverToggled();
  void reportToggled();
  void itemsOnlyToggled();
  void datesToWestern();
  void datesToEra();
  void clearAgent();

  // Calculation, carry-forward, printing: claim_form_print.cpp.
  void previewFees();
  void carryForward();
  void printAcupuncture();
  void printMassage();
  void printRecord();
  void printerOptions();

  // Other screens: claim_form_windows.cpp.
  void showHelp();
  void openReport();
  void openVisitTable();
  void openReasons();
  void openPictureChart();
  /// Opens the screen that belongs to the running command.
  void openBeside();
  void speakPrintGuide();

 private:
  // Showing.
  bool openSources();
  void fillLists();
  bool showClaim(qint64 id);
  /// The second half of the claim, made where it is missing. None: a fault was reported.
  std::optional<store::RecordSet> secondHalf(qint64 id);
  /// Shows the claim of source 1. False: it cannot be read, which is reported; the form is as it was.
  bool showPair();
  void takeValuesOfShow();
  void applyKind();
  void applyMonth();
  void applyVisitTable();
  void applyPrintDefaults();
  void showNothing();

  // Guards. Each tells its message itself.
  /// True where a dirty mark stops an action; checkChanged is tested first.
  bool dirty();
  bool checkedFast();
  bool checkedFull();
  bool passed(const CheckResult& result);
  QStringList openWindows();
  bool mayLeave() { return !dirty() && checkedFast(); }

  // Store.
  bool writeClaim(const ClaimRecord& stored);
  void sayStored(const ClaimAmounts& amounts);
  void markCut(const QStringList& cut);

  void step(void (store::RecordSet::*move)());
  void announce();
  void print(int kind);
  void closePreview();
  /// Shows the warning on differing numbers of areas where it holds; spoken when it comes up by an edit.
  void applyAreaWarning(bool spoken);
  /// A window that stands alone; refused while one of its kind is open, and for months before 2018/10
  /// where `since201810`.
  void openSingle(const QString& name, bool since201810);
  void convertDates(QString (frame::EraDates::*conversion)(const QString&) const);
  /// Fills the fields beside a list from the register row behind the chosen entry; the list itself stays
  /// where it is, so that two entries of one text are told apart.
  void fillSiblings(int combo, const char16_t* column, const Register& list, const RegisterRows& rows);
  void leaveTo(const QString& screenName);

  frame::RunState& m_run;
  ClaimsState& m_state;
  ClaimFormDisplay m_display;
  const QVector<BoundControl> m_controls;
  std::optional<ClaimFile> m_file;
  store::RecordSet m_secondAll;  ///< whole second half, of which source 2 shows one row
  StoredFees m_fees;
  ClaimFormLists m_lists;
  ClaimRecord m_read;  ///< the claim on display as it was read
  qint64 m_id = 0;     ///< 0: no claim on display
  MonthFlags m_flags;
  QString m_opener;
  bool m_treatmentChanged = false;
  bool m_carried = false;  ///< 翌月へ継続 was done since this form was opened
};

}  // namespace claims

#pragma once

#include <QStringList>
#include <optional>

#include "claims/core/amounts.h"
#include "claims/core/checks.h"
#include "claims/core/claim_file.h"
#include "claims/core/claim_record.h"
#include "claims/core/claims_state.h"
#include "claims/core/fee_source.h"
#include "claims/core/rule_dates.h"
#include "claims/screens/claim_form_display.h"
#include "claims/screens/claim_form_lists.h"
#include "frame/core/run_state.h"
#include "platform/screen/declare.h"
#include "platform/screen/record_screen.h"

namespace claims {

/// frmレセプトフォーム (caption 保険申請): the one place where a claim is read, changed, computed and sent to
/// printing. Source 1 is the first half, source 2 the second; both show the claim of one ID.
///
/// Two dirty marks guard it: checkChanged (a bound tick or option) and treatmentChanged (the day grid).
/// While one is set, nothing but 登録 and 削除 goes on. Edits of text fields set neither; they are written by
/// 登録 and lost when the record is left.
class ClaimFormScreen : public screen::RecordScreen {
 public:
  ClaimFormScreen(screen::Services& services, frame::RunState& run, ClaimsState& state);
  ~ClaimFormScreen() override;

  // Life and moves: claim_form_screen.cpp.
  void onLoad() override;
  void opened(const screen::Request& request) override;
  bool onCloseBox() override;
  void removeRow() override;
  void closeForm();

  // What the form shows: claim_form_show.cpp.
  /// The claim as the form shows it, columns of both halves.
  ClaimRecord record() const;
  /// The ticks for printing.
  FormTicks checks() const;
  /// Puts a text into the field of a column, as the helper windows do; a column without a field is left out.
  void put(const store::Column& column, const QString& text);
  const MonthFlags& flags() const { return m_flags; }
  bool treatmentChanged() const { return m_treatmentChanged; }
  void monthLeft();
  void visitTableToggled();

  // Store: claim_form_store.cpp.
  void storeRow() override;
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
  /// Opens a helper screen on the claim on display.
  template <screen::Route R>
  void openOnClaim() {
    if (m_id == 0) return;
    R route;
    route.claim = m_id;
    navigator().show(route);
  }
  /// The same of a screen that prints: the dirty marks stop it, as all printing.
  template <screen::Route R>
  void openToPrint() {
    if (m_id != 0 && !dirty()) openOnClaim<R>();
  }
  /// Opens a register with what the claim shows.
  template <screen::Route R>
  void openRegister() {
    if (m_id != 0) navigator().show(R{.fromClaim = true});
  }
  void speakPrintGuide();

 protected:
  QStringList rowInWords() const override;
  bool readyToMove() override { return m_id != 0 && mayLeave(); }
  void moveRow(const screen::RowMove& move) override;
  void rowReached() override { showPair(); }

 private:
  // Showing.
  bool openSources();
  void fillLists();
  bool showClaim(qint64 id);
  /// The second half of the claim, made where it is missing. None: a fault was reported.
  std::optional<store::RecordSet> secondHalf(qint64 id);
  /// Shows the claim of source 1. False: it cannot be read, which is reported; the form is as it was.
  bool showPair();
  void applyDefaultsOnShow();
  void applyKind();
  void applyMonth();
  void applyVisitTable();
  void applyPrintDefaults();
  void showNothing();

  // Guards. Each reports by its message.
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
  /// Puts what differs into the fields, where it counts as typed.
  void putChanges(const ClaimRecord& before, const ClaimRecord& after);
  void markCut(const QStringList& cut);

  void announce() { voice().speakHeading(rowInWords()); }
  void print(PrintKind kind);
  void closePreview();
  /// Shows the warning on differing numbers of areas if they differ; spoken when an edit brings it up.
  void applyAreaWarning(bool spoken);
  /// Whether a window of which only one may be open can be opened: refused, with a message, while one of them
  /// is, and for months before 2018/10 where `since201810`.
  bool mayOpenSingle(screen::ScreenName name, bool since201810);
  template <screen::Route R>
  void openSingle(const R& route, bool since201810) {
    if (mayOpenSingle(R::screen, since201810)) navigator().show(route);
  }
  void convertDates(QString (frame::EraDates::*conversion)(const QString&) const);
  /// Fills the other fields of a register's row from the entry chosen in a list; the list itself stays as it
  /// is, so that two entries of one text remain two.
  void fillSiblings(const screen::ControlRef& list, const store::Column& column, const Register& from,
                    const RegisterRows& rows);
  void leaveTo(std::optional<screen::ScreenName> next);

  frame::RunState& m_run;
  ClaimsState& m_state;
  ClaimFormDisplay m_display;
  std::optional<ClaimFile> m_file;
  store::RecordSet m_secondAll;  ///< whole second half, of which source 2 shows one row
  StoredFees m_fees;
  ClaimFormLists m_lists;
  ClaimRecord m_read;  ///< the claim on display as it was read
  qint64 m_id = 0;     ///< 0: no claim on display
  MonthFlags m_flags;
  std::optional<screen::ScreenName> m_opener;  ///< none: the claim list
  bool m_treatmentChanged = false;
  bool m_carried = false;  ///< 翌月へ継続 was done since this form was opened
};

}  // namespace claims

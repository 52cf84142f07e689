#pragma once

#include <optional>

#include "frame/core/routes.h"
#include "frame/core/run_state.h"
#include "platform/screen/record_screen.h"

namespace records {

struct DateConversion;

/// The patient master: one row of the patient table at a time. Every chart, appointment, receipt and claim
/// of a patient starts here. How it is entered: routes::PatientRegister.
class PatientScreen : public screen::RecordScreen {
 public:
  PatientScreen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  void onActivate() override;
  bool onCloseBox() override;
  void rowShown(int sourceNumber) override;

  // The record.
  void askNewPatient();
  void startNewPatient();
  void search();
  void chooseSex();

  // Dates.
  void refreshAge();
  /// Enter in the birth date: says the age.
  void enterBirth();
  void toSeireki();
  void toWareki();
  void fillFirstVisit();
  void copyToday();
  void focusSymptom();
  void focusTreatment();

  // Other screens.
  void leave();
  void openChart1();
  void openChart2();
  void openChart3();
  void openNewClaim();
  void openClaims();
  void openReceipt();
  void openPatientAppointment();
  void openAppointment();
  void openToday();
  void openWeek();

 protected:
  /// Position and name of the patient on view; of an empty register the number of patients.
  QStringList rowInWords() const override;
  bool readyToStore() override;
  /// Says the result alone: the patient who was stored stays on view.
  void sayStored() override;
  /// A new patient who was not stored is lost by moving away: that is why adding warns beforehand. What was
  /// typed over a stored patient is written.
  bool mayLeaveRow() override;

 private:
  using Route = routes::PatientRegister;
  // What a route asks for.
  void enter(const Route::AsShown&);
  void enter(const Route::Announced&);
  void enter(const Route::NewPatient&);
  void enter(const Route::BySerial& patient);
  void enter(const Route::Booked& person);
  void enter(const Route::Listed& patient);

  /// Does what has to wait until the screen has the keyboard: the growth of an older file, a notice.
  void showWaiting();
  void offerGrowth();
  QString file() const;

  /// The table is open and has no rows, and none is being added.
  bool isEmpty() const;
  /// Offers a first patient if the table is empty; true then.
  bool noPatient();
  bool startRow(const QString& patientName = QString());
  void fillSearchRow(const QString& patientName);
  /// Says who is on view, or reports the refusal as soon as the screen has the keyboard.
  void noteFound(const text::Result<bool>& found);

  /// Whether the charts may open: a row that was not stored has none yet. False: reported.
  bool readyForChart();
  template <class R>
  void openBookings(const R& route);
  void convert(const DateConversion& conversion);
  /// The patient as the fields show it now, with the address as one text.
  frame::Patient patientOnView() const;
  frame::RunState& m_run;
  bool m_asksGrowth = false;
  struct Notice {
    QString text, title;
  };
  std::optional<Notice> m_notice;
};

}  // namespace records

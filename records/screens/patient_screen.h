#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace records {

/// The patient master: one row of the patient table at a time. Every chart, appointment, receipt and claim
/// of a patient starts here.
class PatientScreen : public screen::Screen {
 public:
  PatientScreen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  void onActivate() override;
  bool onCloseBox() override;
  void goFirst() override;
  void goPrevious() override;
  void goNext() override;
  void goLast() override;
  void rowShown(int sourceNumber) override;

  // The record.
  void askNewPatient();
  void startNewPatient();
  void storePatient();
  void deletePatient();
  void search();
  void chooseSex();

  // Dates.
  void refreshAge();
  void toSeireki();
  void toWareki();
  void fillFirstVisit();
  void copyToday();
  void focusSymptom();
  void focusTreatment();

  // Other rooms.
  void leave();
  void openChart1();
  void openChart2();
  void openChart3();
  void openNewClaim();
  void openClaims();
  void openReceipt();
  void openPatientAppointment();

 private:
  void move(void (screen::DataSource::*step)());
  /// A move of the user's: says who is on view then.
  void step(void (screen::DataSource::*step)());
  /// Position and name of the patient on view; of an empty register the number of patients.
  QStringList onView() const;
  /// Speaks a result; blank parts are left out.
  void say(const QStringList& parts);
  bool mayLeave();
  void convertDates(QString (frame::EraDates::*conversion)(const QString&) const);
  void applyCaptions();
  screen::Request patientColumns() const;
  frame::RunState& m_run;
};

}  // namespace records

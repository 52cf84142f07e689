#pragma once

#include <optional>

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace records {

struct DateConversion;

/// The patient master: one row of the patient table at a time. Every chart, appointment, receipt and claim
/// of a patient starts here.
///
/// Request keys: "新規" (start a new row), "テキスト5" (the patient of that serial), "代入" (the name of a
/// booked person: found, or a new row with it), "ID" and "氏名" (the patient of the list, whose name goes
/// into the search row), "表示患者" (say who is on view). Without one the row on view is shown as it stands
/// in the file now.
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
  /// Enter in the birth date: says the age.
  void enterBirth();
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
  void openAppointment();
  void openToday();
  void openWeek();

 private:
  /// What is asked and told as soon as the screen has the keyboard: the growth of an older file, a notice.
  void tellWaiting();
  void offerGrowth();
  QString file() const;

  /// The table is open and has no rows, and none is being added.
  bool isEmpty() const;
  /// Offers a first patient where the table is empty; true there.
  bool noPatient();
  bool startRow(const QString& patientName = QString());
  void takeSerial(const QString& serial);
  void takeBooked(const QString& patientName);
  void takeListed(qint64 id, const QString& patientName);
  void fillSearchRow(const QString& patientName);
  void showAgain();
  /// Says who is on view, or keeps the refusal until the screen has the keyboard.
  void noteFound(const text::Result<bool>& found);

  /// Whether the charts may open: a row that was not stored has none yet. False: told.
  bool readyForChart();
  void openBooking(const QString& screenName, const screen::Request& request = {});
  void move(void (screen::DataSource::*step)());
  /// A move of the user's: says who is on view then.
  void step(void (screen::DataSource::*step)());
  /// Position and name of the patient on view; of an empty register the number of patients.
  QStringList onView() const;
  bool mayLeave();
  void convert(const DateConversion& conversion);
  screen::Request patientColumns() const;
  frame::RunState& m_run;
  bool m_asksGrowth = false;
  struct Notice {
    QString text, title;
  };
  std::optional<Notice> m_notice;
};

}  // namespace records

#pragma once

#include "frame/core/run_state.h"
#include "office/screens/day_lists.h"
#include "platform/screen/once_active.h"
#include "platform/screen/screen.h"

namespace office {

/// 予約2: one booking. A booking is a free record: nothing compares it with others, and two at one time are
/// two rows. Only 登録 and 閉じる store; whatever else leaves a booking asks before it drops what was typed.
///
/// Request keys: "ID" (that booking), else a new booking is begun, for the patient of "患者ID", "氏名" and
/// "テキスト5" where they are handed over; "opener": the list that 閉じる goes back to, before the caller's
/// mark of the run is asked; "戻る": back to the booking on view.
class BookingScreen : public screen::Screen {
 public:
  BookingScreen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  void onActivate() override;
  QStringList openingTexts() const override;
  bool onCloseBox() override;
  void rowShown(int sourceNumber) override;
  void goFirst() override;
  void goPrevious() override;
  void goNext() override;
  void goLast() override;

  void addBooking();
  void storeBooking();
  void deleteBooking();
  void finish();
  void fillToday();
  void fillNow();
  void rewriteTimes();
  void showWeekday();
  void openList();

 private:
  bool openTable();
  void begin(const screen::Request& patient);
  void showBooking(qint64 id);
  /// To where the user begins: the first field of a booking, of a new one what is still to be told.
  void focusOnField();
  void putDay(QDate date);
  /// The lists of the day, and the hidden fields of the same columns.
  void putNumbers(const frame::DayAsked& day);
  /// What follows from the day of the lists: weekday, date text, and the lists and their fields as digits.
  void putDerived(const ListedDay& day);
  bool putSerial();
  bool hasBooking() const;
  /// Texts of all fields that are stored, hidden ones too.
  QStringList fields() const;
  void putFields(const QStringList& texts);
  /// Asks where the user typed something that is not stored. False: the booking stays.
  bool mayDrop();
  bool write();
  QString caller() const;
  void leave();
  void step(void (screen::DataSource::*step)());
  /// Date, weekday, time and name, as far as they are filled in.
  QStringList bookingOnView() const;
  void sayBooking(const QString& done);

  frame::RunState& m_run;
  QString m_opener;
  QStringList m_shown;  ///< the fields as they were shown or filled in, before the user typed
  screen::OnceActive m_onceActive;
};

extern const screen::ScreenRow kBooking;

}  // namespace office

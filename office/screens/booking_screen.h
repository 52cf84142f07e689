#pragma once

#include "frame/core/patient.h"
#include "frame/core/run_state.h"
#include "office/screens/day_lists.h"
#include "platform/screen/record_screen.h"
#include "platform/screen/run_when_activated.h"

namespace office {

/// 予約2: one booking. A booking is a free record: nothing compares it with others, and two at one time are
/// two rows. Only 登録 and 閉じる store; whatever else leaves a booking asks before it drops what was typed.
class BookingScreen : public screen::RecordScreen {
 public:
  BookingScreen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  void onActivate() override;
  QStringList openingTexts() const override;
  bool onCloseBox() override;
  void rowShown(int sourceNumber) override;

  void addBooking();
  void storeRow() override;
  void finish();
  void fillToday();
  void fillNow();
  void rewriteTimes();
  void showWeekday();
  void openList();

 protected:
  QStringList rowInWords() const override;
  bool readyToMove() override { return source().ensureOpen() && mayLeaveRow(); }
  /// Asks where the user typed something that is not stored. False: the booking stays.
  bool mayLeaveRow() override;
  void sayDone(const QString& done) override;

 private:
  bool openTable();
  void begin(const std::optional<frame::Patient>& patient);
  void showBooking(qint64 id);
  /// Focuses the field that the user begins with: the first of a booking, of a new one the first blank one.
  void focusOnField();
  void putDay(QDate date);
  /// The lists of the day, and the hidden fields of the same columns.
  void putNumbers(const frame::DayAsked& day);
  /// What follows from the day of the lists: weekday, date text, and the lists and their fields as digits.
  void putDerived(const ListedDay& day);
  bool putSerial();
  /// Texts of all fields that are stored, hidden ones too.
  QStringList fields() const;
  void putFields(const QStringList& texts);
  bool mayDrop();
  std::optional<screen::ScreenName> caller() const;
  void leave();
  /// Date, weekday, time and name, as far as they are filled in.
  QStringList bookingOnView() const;
  void sayBooking(const QString& done);

  frame::RunState& m_run;
  std::optional<screen::ScreenName> m_opener;  ///< shown again by 閉じる, before the caller of the book
  QStringList m_shown;  ///< the fields as they were shown or filled in, before the user typed
  screen::RunWhenActivated m_whenActivated;
};

}  // namespace office

#pragma once

#include "office/screens/booking_list.h"

namespace office {

/// 今日の予約: all bookings, narrowed to a day or to a text. A search narrows the rows on view; the list
/// stays narrowed until 全表示に戻す.
/// Coming back to the open list reads its rows afresh.
class TodaysBookingsScreen : public BookingList {
 public:
  using BookingList::BookingList;
  TodaysBookingsScreen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  QStringList openingTexts() const override;
  void rowShown(int sourceNumber) override;

  /// The day of the three lists.
  void showDay();
  void showWeekday();
  void extract();
  void openCalendar();
  void askCalendar();
  void openWeek();
  void showAll();
  void removeBooking();
  void newBooking();
  void editBooking();

 protected:
  bool openWhole() override;
  void setChanged(const QString& done) override;

 private:
  /// The day of the three lists, whose weekday is shown; lists without a date are reported.
  std::optional<QDate> readLists();
  /// Title, and that not all bookings are on view.
  QStringList headingTexts() const;
  /// Reads the rows on view again: other screens may have changed them.
  void readAgain();
  bool m_loaded = false;
  bool m_narrowed = false;
  bool m_showsDay = false;  ///< opened for a day: its bookings are said, not those on view before
};

}  // namespace office

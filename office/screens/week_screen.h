#pragma once

#include "office/screens/booking_list.h"

namespace office {

/// 予約週間表: the bookings of one day of this, the next or the last week, chosen by its tab. Every tab reads
/// the book afresh; a day without bookings leaves the list empty, so that no other day's rows stand under its
/// date.
class WeekScreen : public BookingList {
 public:
  WeekScreen(screen::Services& services, frame::RunState& run);

  void opened(const screen::Request& request) override;

  /// The day of the chosen tab.
  void showDay();
  void showThisWeek();
  void showNextWeek();
  void showLastWeek();

 private:
  /// The week around the day that many days from today, on today's weekday.
  void showWeek(int days);
  /// The same without the bookings: tab and buttons.
  void standOn(int days);
  QDate m_reference;
};

}  // namespace office

#pragma once

#include "office/screens/booking_list.h"

namespace office {

/// 予約週間表: the bookings of one day of this, the next or the last week, chosen by its tab. Every tab reads
/// the book afresh; a day without bookings leaves the list empty, so that no other day's rows are listed
/// under its date.
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
  /// Shows the week that is `days` from this one, on today's weekday.
  void showWeek(int days);
  /// Sets tab and buttons for it, without reading the bookings.
  void chooseWeek(int days);
  QDate m_reference;
};

}  // namespace office

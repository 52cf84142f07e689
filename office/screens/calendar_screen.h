#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace office {

/// 予約カレンダー and 集計カレンダー: a date cursor, and the list that shows the day. Whether the bookings or
/// the takings of the day are shown is the run's CalendarUse.
class CalendarScreen : public screen::Screen {
 public:
  CalendarScreen(const screen::ScreenRow& declaration, screen::Services& services, frame::RunState& run);

  void opened(const screen::Request& request) override;
  QString dayText(const QDate& day) const;
  void extract();
  void finish();

 private:
  frame::RunState& m_run;
};

/// The calendar under its two names.
std::span<const screen::ScreenRow> calendarScreens();

}  // namespace office

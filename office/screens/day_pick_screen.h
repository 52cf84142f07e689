#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace office {

/// 抽出4 and 抽出5, the date pickers of the appointment book: the day is shown on 今日の予約.
class DayPickScreen : public screen::Screen {
 public:
  DayPickScreen(const screen::ScreenRow& declaration, screen::Services& services, frame::RunState& run);

  /// The lists begin with the day asked for last, otherwise with today.
  void opened(const screen::Request& request) override;
  void pick();
  void cancel();

 private:
  frame::RunState& m_run;
};

/// The pickers under their two names.
std::span<const screen::ScreenRow> dayPickScreens();

}  // namespace office

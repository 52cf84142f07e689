#pragma once

#include <functional>

#include "frame/core/run_state.h"
#include "office/core/booking.h"
#include "platform/screen/declare.h"
#include "platform/screen/list_screen.h"
#include "platform/screen/run_when_activated.h"

namespace office {

/// What the lists of the appointment book share: bookings of 予約 in a grid, a chosen day, the way to the
/// chart and back to the caller.
class BookingList : public screen::ListScreen {
 public:
  /// `list`: the grid of the declaration.
  BookingList(const screen::ScreenRow& declaration, screen::ControlRef list, screen::Services& services,
              frame::RunState& run);

  void onActivate() override;
  bool onCloseBox() override;

  /// 治療台帳へ代入: the chart screen finds the booked person, or enters a new patient of that name.
  void handOver();
  /// 閉じる: back to the caller.
  void finish();

 protected:
  bool openWhole() override;
  QString noRowsText() const override;
  QStringList rowOnView() const override;
  QStringList countOnView() const override;

  /// The bookings of the day among the rows on view; nothing if there are none at all or the
  /// database refused, which was reported.
  std::optional<store::RecordSet> bookingsOfDay(const frame::DayAsked& day);
  /// Says the parts and how many bookings are on view; they are heard before what the focus says next.
  void sayWithCount(const QStringList& parts);
  /// The same for rows that came on view: the keyboard goes to them, and the first of them is heard.
  void sayRows(const QStringList& parts);
  /// Runs the work once the window has the keyboard: it may show a message.
  void whenActive(std::function<void()> work);

  frame::RunState& m_run;

 private:
  /// The booking on view.
  Booking booking() const { return store::readRecord<Booking>(source().rows()); }
  const screen::ControlRef m_list;
  screen::RunWhenActivated m_whenActivated;
};

/// The screen that the appointment book goes back to. The main menu only if the patients have a file.
std::optional<screen::ScreenName> callerOf(const frame::RunState& run);

}  // namespace office

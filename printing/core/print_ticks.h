#pragma once

#include "claims/core/tick_names.h"
#include "printing/core/edition.h"

namespace printing {

/// Ticks of a printing screen. The era ticks (申請年月に元号を追加) belong to one edition each.
struct PrintTicks {
  bool eraOn201901 = false;
  bool eraOn202012 = false;
  bool eraOn202104 = false;
  bool eraOn202410 = false;
  bool newElderlyLabels = false;  ///< 右上部の高齢９・高齢８→高齢ー・高齢７にした印刷
  bool sealsHidden = false;       ///< 丸印の削除

  bool operator==(const PrintTicks&) const = default;
};

/// The check boxes of the ticks, by number.
inline constexpr claims::TickName<PrintTicks> kPrintTicks[] = {
    {u"Check1", &PrintTicks::eraOn201901}, {u"Check2", &PrintTicks::newElderlyLabels},
    {u"Check3", &PrintTicks::eraOn202012}, {u"Check4", &PrintTicks::eraOn202104},
    {u"Check5", &PrintTicks::sealsHidden}, {u"Check6", &PrintTicks::eraOn202410},
};
static_assert(claims::namesEveryTick(kPrintTicks));

/// Control name of a tick.
consteval const char16_t* controlOf(bool PrintTicks::*tick) {
  for (const auto& row : kPrintTicks)
    if (row.tick == tick) return row.control;
  throw "the tick has no check box";
}

}  // namespace printing

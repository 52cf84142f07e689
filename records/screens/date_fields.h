#pragma once

#include <span>

#include "frame/core/era_date.h"
#include "platform/screen/declare.h"
#include "platform/screen/screen.h"

namespace records {

/// A rewriting of dates, and what is said when it is done.
struct DateConversion {
  QString (frame::EraDates::*convert)(const QString&) const;
  const char16_t* done;
};
inline constexpr DateConversion kToSeireki{&frame::EraDates::seireki, u"日付を西暦にしました"};
inline constexpr DateConversion kToWareki{&frame::EraDates::wareki, u"日付を和暦にしました"};

/// Rewrites the dates of the fields; a blank one stays blank, one that cannot be read stays as it is.
void convertDates(screen::Screen& screen, std::span<const screen::ControlRef> fields,
                  const frame::EraDates& dates, const DateConversion& conversion);
/// Says that the dates were rewritten, and how they are now.
void sayDates(screen::Screen& screen, std::span<const screen::ControlRef> fields,
              const DateConversion& conversion);

}  // namespace records

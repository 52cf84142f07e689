#pragma once

#include "frame/core/era_date.h"
#include "frame/core/settings_slots.h"
#include "platform/screen/screen.h"

namespace records {

// What the faces of the patient master share: their fields bear the same names on each.

/// Puts the captions of the practice's own (項目テキストの変更) on those of the fields that the screen has.
void applyOwnCaptions(screen::Screen& screen, const frame::SettingsSlots& settings);

/// A rewriting of the patient's dates, and what is said when it is done.
struct DateConversion {
  QString (frame::EraDates::*convert)(const QString&) const;
  const char16_t* done;
};
inline constexpr DateConversion kToSeireki{&frame::EraDates::seireki, u"日付を西暦にしました"};
inline constexpr DateConversion kToWareki{&frame::EraDates::wareki, u"日付を和暦にしました"};

/// Rewrites 生年月日 and 初診日; a blank one stays blank, one that cannot be read as it is.
void convertDates(screen::Screen& screen, const frame::EraDates& dates, const DateConversion& conversion);
/// Says that the dates were rewritten, and both as they stand now.
void sayDates(screen::Screen& screen, const DateConversion& conversion);

}  // namespace records

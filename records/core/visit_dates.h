#pragma once

#include <QString>
#include <optional>

#include "frame/core/era_date.h"
#include "platform/store/record_set.h"

namespace records {

// Dates of the visit ledger. 治療日時 stays as it was typed; its shadow 治療日チェック is the western form
// that lists are sorted by.

/// The shadow of a visit date, "yyyy/m/d": by the platform's date test, else by the program's own conversion
/// (typed short forms; 令和 if the platform lacks it). nullopt: blank or unreadable, the shadow stays.
std::optional<QString> visitDateShadow(const QString& typed, const frame::EraDates& era);

/// Date pass: brings the shadow of every row of the view up to date, all or none. 治療日時 is never
/// rewritten, a row whose shadow is right already is not touched, and the current row stays. A fault carries
/// the text of the database.
text::Done passVisitDates(store::RecordSet& view, const frame::EraDates& era);

/// Today as "ggge年m月d日", by the program's own conversion if the platform lacks 令和.
QString todayText(const frame::EraDates& era);
/// The present month as "ggge年m月".
QString presentMonthText(const frame::EraDates& era);

}  // namespace records

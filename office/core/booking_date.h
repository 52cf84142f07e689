#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "frame/core/era_date.h"
#include "frame/core/run_state.h"

namespace office {

/// Year, month and day as typed into three lists, full-width digits too; nullopt if one is no number.
std::optional<frame::DayAsked> dayTyped(const QString& year, const QString& month, const QString& day);

/// The three numbers of a day.
frame::DayAsked numbersOf(QDate date);
/// What date lists begin with: the day asked for last, otherwise today.
frame::DayAsked offeredDay(const frame::RunState& run);

/// The day that the date function makes of the numbers: a day or month that does not exist rolls over
/// (31 February is 2 or 3 March, day 0 the last of the month before). nullopt outside the years 100 to 9999.
std::optional<QDate> rolled(const frame::DayAsked& day);

/// The format "aaaa": "月曜日".
QString weekday(QDate date);
/// The format "ggge年m月d日aaaa", as days are shown and spoken.
QString dayText(const frame::EraDates& dates, QDate date);
/// The format "ggge年m月d日 h:m", without leading zeros, of 登録日時.
QString stampText(const frame::EraDates& dates, const QDateTime& moment);
/// A typed stamp in that format: a date that the date test accepts, with or without a time (none is 0:0).
std::optional<QString> stampRewritten(const frame::EraDates& dates, const QString& typed);
/// The date text of 日時1, "yyyy/m/d".
QString shadowDate(QDate date);

/// Tab of a weekday in the week view: 日曜日 1 to 土曜日 7.
int tabOf(QDate date);
/// The day of a tab in the week that runs from the Sunday before the reference day.
QDate dayOfTab(QDate reference, int tab);

}  // namespace office

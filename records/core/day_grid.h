#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "frame/core/era_date.h"

namespace records {

/// The claim month ("令和6年10月") that the day grid stands for, as its first day. 令和元年 is read as
/// 令和1年. nullopt: blank or unreadable.
std::optional<QDate> gridMonth(const QString& claimMonth, const frame::EraDates& era);

/// Number of day columns of the month: February has 29 in each year that 4 divides, 2100 among them (kept:
/// the forms count so). A month that is not known shows all 31.
int visibleDays(std::optional<QDate> month);

/// Check of a cell of 治療内容 on leaving it: blank, or it begins with a letter of the claim's kind of
/// treatment (column 施術内容): a to f for 灸, 鍼 and 鍼灸, g to j for あマ. The message, null where it
/// stands.
QString gridCodeMessage(const QString& cell, const QString& treatment);

}  // namespace records

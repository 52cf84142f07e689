#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "frame/core/era_date.h"

namespace records {

/// The claim month ("令和6年10月") of the day grid, as its first day. 令和元年 is read as
/// 令和1年. nullopt: blank or unreadable.
std::optional<QDate> gridMonth(const QString& claimMonth, const frame::EraDates& era);

/// Number of day columns of the month: February has 29 in every year divisible by 4, 2100 included, as the
/// forms count. An unknown month shows all 31.
int visibleDays(std::optional<QDate> month);

/// Check of a cell of 治療内容 on leaving it: blank, or it begins with a letter of the claim's kind of
/// treatment (column 施術内容): a to f for 灸, 鍼 and 鍼灸, g to j for あマ. Returns the message, null if the
/// cell is valid.
QString gridCodeMessage(const QString& cell, const QString& treatment);

}  // namespace records

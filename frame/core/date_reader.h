#pragma once

#include <QDate>
#include <QStringView>
#include <optional>

#include "frame/core/eras.h"

namespace frame {

/// What a date text says: the day, and the era and era year where it names one.
struct ReadDate {
  QDate date;
  const Era* era = nullptr;
  int year = 0;  ///< as written: of the era, or western
};

/// The date test of the platform, read by hand because lists ask it for every row.
///
/// Accepted, with ASCII or full-width characters and blanks around the numbers:
///   western   2024/10/1  2024-10-1  2024.10.1  2024年10月1日      (four digits of the year)
///   era       令和6年10月1日  令和元年5月1日  令和6/10/1  令6.10.1  R6/10/1  s50/3/15
///   month     令和6年10月  2024/10  R6/10                         (its first day)
///   and any of the dates followed by a time of day, which does not count.
/// Refused: days that do not exist (2月30日), years of two digits without an era, a day without a year,
/// digits without separators. An era year may run past the era's last day or begin before its first
/// (平成31年5月1日, 令和1年1月1日): people go on writing an old era, and papers are dated ahead.
/// With `reiwaKnown` false every text of 令和 is refused.
std::optional<ReadDate> readDate(QStringView text, bool reiwaKnown);

}  // namespace frame

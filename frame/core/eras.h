#pragma once

#include <QDate>
#include <QString>
#include <span>

namespace frame {

/// One era. Its year n is the western year firstDay.year() - 1 + n.
struct Era {
  const char16_t* name;  ///< the first two characters of a date text
  char16_t letter;       ///< of the short form, upper case
  int firstYear;
  int firstMonth;
  int firstDay;

  QString nameText() const { return QString::fromUtf16(name); }
  QDate begin() const { return QDate(firstYear, firstMonth, firstDay); }
  int baseYear() const { return firstYear - 1; }
};

/// 明治, 大正, 昭和, 平成, 令和 by their official first days. 明治 counts from the first day of its first
/// year, to which the proclamation of that autumn was dated back.
std::span<const Era> eras();

/// The era that a day lies in; with `reiwaKnown` false 平成 goes on for ever. nullptr before 明治.
const Era* eraOf(QDate date, bool reiwaKnown = true);

}  // namespace frame

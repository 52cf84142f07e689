#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "platform/text/clock.h"

namespace frame {

/// Whether the platform's date routines know 令和: "対応" or "非対応".
enum class EraCapability { Supported, Unsupported };

/// Era name, era year and the rest of a date, as the forms print them in separate boxes.
struct EraParts {
  QString era;  ///< 明治, 大正, 昭和, 平成, 令和
  int year = 0;
  int month = 0;
  int day = 0;
};

/// Today as the menus use it.
struct TodayParts {
  QString eraYear;    ///< "令和1年"; of an earlier era if today lies in one
  QString month;      ///< "5"
  QString day;        ///< "25"
  QString eraDate;    ///< today in the platform's era form
  QString reiwaDate;  ///< today in the "令和n年m月d日" form; the platform's form outside the table
};

/// The one implementation of the era operations. Each operation states the form of the
/// texts it takes and gives; nothing here shows a message, and a text that cannot be read gives nullopt.
class EraDates {
 public:
  EraDates(EraCapability capability, const text::Clock& clock) : m_capability(capability), m_clock(clock) {}

  /// The platform's date test and reading (date_reader.h lists every accepted form), under the capability:
  /// 令和 is unknown to a platform without it.
  std::optional<QDate> platformDate(const QString& text) const;
  /// The platform's formatter for "ggge年m月d日". The first year is 1, never 元. A platform without 令和 goes
  /// on counting 平成. Before 明治 there is no era: "1867年1月1日".
  QString formatEra(QDate date) const;
  /// FormatEra: a text that the date test accepts, in "ggge年m月d日".
  std::optional<QString> formatEra(const QString& text) const;

  TodayParts todayEraParts() const;
  /// The main menu's own copy, whose list runs one place on: there 平成32年 becomes 令和3年.
  TodayParts todayEraPartsMenu() const;
  /// ParseEraDate: shorthand (R1/5/1, r01/5/1; 令和1 to 20) or 令和 text (any year, by its characters) to
  /// "yyyy/m/d". A day that does not exist cannot be read. A month's text means its first day.
  std::optional<QString> parseEraDate(const QString& text) const;
  /// WesternToReiwa: "2019/" to "2038/" or a shorthand to "令和n年m月d日". The year alone decides: 1 January
  /// of 2019 is 令和1年 here.
  std::optional<QString> westernToReiwa(const QString& text) const;
  /// HeiseiToReiwa: a day that the platform formats as 平成31年 to 平成50年 as 令和1年 to 20年, by the era
  /// year alone; earlier eras are left (nullopt).
  std::optional<QString> heiseiToReiwa(QDate date) const;
  bool isAfterReiwaCutover(QDate date, QDate cutover) const { return date >= cutover; }
  /// Completed years by the yyyymmdd arithmetic with halves to the even neighbour.
  std::optional<int> ageFromBirthDate(const QString& text) const;

  /// 和暦 conversion of a field: the field's new text (unchanged if it cannot be read).
  QString wareki(const QString& text) const;
  /// 西暦 conversion of a field.
  QString seireki(const QString& text) const;

  /// isDateOk of the claim checks: the date test, otherwise the era routine.
  bool isDateOk(const QString& text) const;
  /// Any accepted form as a date: the date test, otherwise the program's own conversion.
  std::optional<QDate> anyDate(const QString& text) const;
  /// claimMonthToDate: an era month ("令和6年10月") as the first of that month. Any other text that the date
  /// test of the claim checks accepts gives its month, so that no claim is left without amounts.
  std::optional<QDate> claimMonthToDate(const QString& month) const;
  /// Era, year, month and day of any accepted text, for the boxes of the forms: as written if the text
  /// names an era (平成31年5月1日 stays 平成 31), by the day if it is western.
  std::optional<EraParts> parts(const QString& text) const;
  static EraParts partsOf(QDate date);

  EraCapability capability() const { return m_capability; }
  const text::Clock& clock() const { return m_clock; }

 private:
  /// Today by the table from 平成31年 on; `doubledRow` is the number of rows before the one that it has
  /// twice.
  TodayParts today(int doubledRow) const;

  EraCapability m_capability;
  const text::Clock& m_clock;
};

}  // namespace frame

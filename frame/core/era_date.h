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
  QString eraYear;     ///< "令和1年"; blank where the platform's own answer already serves
  QString month;       ///< "5"
  QString day;         ///< "25"
  QString eraDate;     ///< today in the platform's era form
  QString reiwaDate;   ///< today in the "令和n年m月d日" form
};

/// The one implementation of the era operations. The texts that dates are kept as are told with each
/// operation; nothing here shows a message, and a text that cannot be read gives nullopt.
class EraDates {
 public:
  EraDates(EraCapability capability, const text::Clock& clock) : m_capability(capability), m_clock(clock) {}

  /// The platform's date test and reading: western ("2019/5/25", "2019-5-25", with or without zeros), era
  /// ("令和6年10月1日", 元 too), under the capability (令和 is unknown to a platform without it).
  std::optional<QDate> platformDate(const QString& text) const;
  /// The platform's formatter for "ggge年m月d日".
  QString formatEra(QDate date) const;
  /// FormatEra: a text that the date test accepts, in "ggge年m月d日".
  std::optional<QString> formatEra(const QString& text) const;

  TodayParts todayEraParts() const;
  /// The main menu's own copy, whose list runs one place on: there 平成32年 becomes 令和3年.
  TodayParts todayEraPartsMenu() const;
  /// ParseEraDate: shorthand (R1/5/1, r01/5/1) or 令和 text to "yyyy/m/d".
  std::optional<QString> parseEraDate(const QString& text) const;
  std::optional<QString> westernToReiwa(const QString& text) const;
  std::optional<QString> heiseiToReiwa(QDate date) const;
  bool isAfterReiwaCutover(QDate date, QDate cutover) const { return date >= cutover; }
  /// Completed years by the yyyymmdd arithmetic with halves to the even neighbour.
  std::optional<int> ageFromBirthDate(const QString& text) const;

  /// 和暦 conversion of a field: the field's new text (unchanged where it cannot be read).
  QString wareki(const QString& text) const;
  /// 西暦 conversion of a field.
  QString seireki(const QString& text) const;

  /// isDateOk of the claim checks: the date test, else the era routine.
  bool isDateOk(const QString& text) const;
  /// Any accepted form as a date: the date test, else the program's own conversion.
  std::optional<QDate> anyDate(const QString& text) const;
  /// claimMonthToDate: an era month ("令和6年10月") as the first of that month.
  std::optional<QDate> claimMonthToDate(const QString& month) const;
  /// Era, year, month and day of any accepted text, for the boxes of the forms.
  std::optional<EraParts> parts(const QString& text) const;
  static EraParts partsOf(QDate date);

  EraCapability capability() const { return m_capability; }
  const text::Clock& clock() const { return m_clock; }

 private:
  EraCapability m_capability;
  const text::Clock& m_clock;
};

}  // namespace frame

#include "frame/core/era_date.h"

#include "frame/core/date_reader.h"
#include "frame/core/eras.h"
#include "platform/text/number.h"
#include "platform/text/width.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The program's own tables run from 令和1年 (2019) to 令和20年 (2038) and stop there.
constexpr int kReiwaBase = 2018, kLastReiwaYear = 20;
/// A platform without 令和 calls its first year 平成31年.
constexpr int kHeiseiBeforeReiwa = 30;

QString eraText(const QString& era, int year, int month, int day) {
  return era + QString::number(year) + u'年' + QString::number(month) + u'月' + QString::number(day) + u'日';
}

QString reiwaText(int year, QDate date) { return eraText(u"令和"_s, year, date.month(), date.day()); }

QString westernText(QDate date) {
  return QString::number(date.year()) + u'/' + QString::number(date.month()) + u'/' +
         QString::number(date.day());
}

/// The 令和 year of a short form by its first three characters: "R1/", "r01" to "R09", "r10" to "R20". They
/// are compared as characters: "R1" alone, "R00" and "R21" are in no row.
std::optional<int> shorthandYear(const QString& text) {
  if (text.size() < 3 || (text[0] != u'R' && text[0] != u'r')) return std::nullopt;
  const QChar first = text[1], second = text[2];
  const auto digit = [](QChar c) { return c >= u'0' && c <= u'9' ? c.unicode() - u'0' : -1; };
  if (second == u'/') return digit(first) > 0 ? std::optional(digit(first)) : std::nullopt;
  if (digit(first) < 0 || digit(second) < 0) return std::nullopt;
  const int year = digit(first) * 10 + digit(second);
  return year >= 1 && year <= kLastReiwaYear ? std::optional(year) : std::nullopt;
}

/// The western year with the month and day that follow a short form's three characters.
QString shorthandAsWestern(const QString& text, int year) {
  if (text[2] == u'/') return QString::number(kReiwaBase + year) + text.mid(2);
  return text.mid(3).startsWith(u'/') ? QString::number(kReiwaBase + year) + text.mid(3) : QString();
}

/// "令和6年10月1日" by position: the year from the third character on to 年, the month to 月, the day to 日.
/// A month's text has no day and means its first.
QString reiwaAsWestern(const QString& text) {
  const qsizetype yearEnd = text.indexOf(u'年', 2), monthEnd = text.indexOf(u'月', yearEnd + 1);
  if (yearEnd < 0 || monthEnd < 0) return QString();
  const qsizetype dayEnd = text.indexOf(u'日', monthEnd + 1);
  QString year = text.mid(2, yearEnd - 2), day = text.mid(monthEnd + 1, dayEnd - monthEnd - 1);
  if (year == u"元") year = u"1"_s;
  if (dayEnd < 0) {
    if (monthEnd + 1 < text.size()) return QString();
    day = u"1"_s;
  }
  bool isNumber = false;
  const int number = text::asciiDigits(year).toInt(&isNumber);
  if (!isNumber || number < 1) return QString();
  return QString::number(kReiwaBase + number) + u'/' + text.mid(yearEnd + 1, monthEnd - yearEnd - 1) + u'/' +
         day;
}

}  // namespace

std::optional<QDate> EraDates::platformDate(const QString& text) const {
  const auto read = readDate(text, m_capability == EraCapability::Supported);
  return read ? std::optional(read->date) : std::nullopt;
}

QString EraDates::formatEra(QDate date) const {
  const Era* era = eraOf(date, m_capability == EraCapability::Supported);
  if (!era) return eraText(QString(), date.year(), date.month(), date.day());
  return eraText(era->nameText(), date.year() - era->baseYear(), date.month(), date.day());
}

std::optional<QString> EraDates::formatEra(const QString& text) const {
  const auto date = platformDate(text);
  return date ? std::optional(formatEra(*date)) : std::nullopt;
}

TodayParts EraDates::today(int doubledRow) const {
  const QDate date = m_clock.today();
  const Era* era = eraOf(date, m_capability == EraCapability::Supported);
  TodayParts parts{{}, QString::number(date.month()), QString::number(date.day()), formatEra(date), {}};
  parts.eraYear = parts.eraDate.left(parts.eraDate.indexOf(u'年') + 1);
  parts.reiwaDate = parts.eraDate;
  if (!era || era->letter != u'H') return parts;
  int row = date.year() - era->baseYear() - kHeiseiBeforeReiwa;
  if (row >= 2) row += doubledRow;
  if (row < 1 || row > kLastReiwaYear) return parts;
  parts.eraYear = u"令和%1年"_s.arg(row);
  parts.reiwaDate = reiwaText(row, date);
  return parts;
}

TodayParts EraDates::todayEraParts() const { return today(0); }

TodayParts EraDates::todayEraPartsMenu() const { return today(1); }

std::optional<QString> EraDates::parseEraDate(const QString& text) const {
  QString western;
  if (const auto year = shorthandYear(text))
    western = shorthandAsWestern(text, *year);
  else if (text.startsWith(u'令'))
    western = reiwaAsWestern(text);
  const auto date = platformDate(western);
  return date ? std::optional(westernText(*date)) : std::nullopt;
}

std::optional<QString> EraDates::westernToReiwa(const QString& text) const {
  const auto shorthand = shorthandYear(text);
  const QString western = shorthand ? shorthandAsWestern(text, *shorthand) : text;
  bool isNumber = false;
  const int year = western.left(4).toInt(&isNumber) - kReiwaBase;
  if (!isNumber || western.mid(4, 1) != u"/" || year < 1 || year > kLastReiwaYear) return std::nullopt;
  const auto date = platformDate(western);
  return date ? std::optional(reiwaText(year, *date)) : std::nullopt;
}

std::optional<QString> EraDates::heiseiToReiwa(QDate date) const {
  const Era* era = eraOf(date, m_capability == EraCapability::Supported);
  if (!era || era->letter != u'H') return std::nullopt;
  const int year = date.year() - era->baseYear() - kHeiseiBeforeReiwa;
  if (year < 1 || year > kLastReiwaYear) return std::nullopt;
  return reiwaText(year, date);
}

std::optional<int> EraDates::ageFromBirthDate(const QString& text) const {
  const bool supported = m_capability == EraCapability::Supported;
  const auto birth = supported ? platformDate(text) : anyDate(text);
  if (!birth) return std::nullopt;
  const auto number = [](QDate date) { return date.year() * 10000 + date.month() * 100 + date.day(); };
  return static_cast<int>(text::roundHalfEven((number(m_clock.today()) - number(*birth) - 4999) / 10000.0));
}

QString EraDates::wareki(const QString& text) const {
  const auto date = platformDate(text);
  if (m_capability == EraCapability::Supported) return date ? formatEra(*date) : text;
  if (date) return heiseiToReiwa(*date).value_or(formatEra(*date));
  return westernToReiwa(text).value_or(text);
}

QString EraDates::seireki(const QString& text) const {
  if (const auto date = platformDate(text)) return westernText(*date);
  if (m_capability == EraCapability::Supported) return text;
  return parseEraDate(text).value_or(text);
}

bool EraDates::isDateOk(const QString& text) const { return anyDate(text).has_value(); }

std::optional<QDate> EraDates::anyDate(const QString& text) const {
  if (const auto date = platformDate(text)) return date;
  const auto western = parseEraDate(text);
  return western ? platformDate(*western) : std::nullopt;
}

std::optional<QDate> EraDates::claimMonthToDate(const QString& month) const {
  auto date = anyDate(month + u"1日"_s);
  if (!date) date = anyDate(month);
  return date ? std::optional(QDate(date->year(), date->month(), 1)) : std::nullopt;
}

std::optional<EraParts> EraDates::parts(const QString& text) const {
  const auto read = readDate(text, true);
  if (!read) return std::nullopt;
  if (!read->era) return partsOf(read->date);
  return EraParts{read->era->nameText(), read->year, read->date.month(), read->date.day()};
}

EraParts EraDates::partsOf(QDate date) {
  const Era* era = eraOf(date);
  if (!era) return EraParts{QString(), date.year(), date.month(), date.day()};
  return EraParts{era->nameText(), date.year() - era->baseYear(), date.month(), date.day()};
}

}  // namespace frame

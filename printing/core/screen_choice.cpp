#include "printing/core/screen_choice.h"

#include <QStringList>

namespace printing {

namespace {

enum class Aichi { Any, NotThree };
enum class PublicAid { Any, Set };

/// One row of the choice; the first that fits wins.
struct ScreenRow {
  int from, before;            ///< claim months yyyymm: from <= month < before
  const char16_t* prefecture;  ///< nullptr: any
  Aichi aichi;
  PublicAid publicAid;
  const char16_t* screen;
};

constexpr int kFirst = 0, kEnd = 999912;

constexpr ScreenRow kScreens[] = {
    {202410, kEnd, u"23", Aichi::NotThree, PublicAid::Any, u"レセプト印刷2024aimakai"},
    {202410, kEnd, u"13", Aichi::Any, PublicAid::Set, u"東京助成レセプト印刷2024"},
    {202410, kEnd, u"17", Aichi::Any, PublicAid::Set, u"石川県の公費レセプト印刷2024"},
    {202410, kEnd, nullptr, Aichi::Any, PublicAid::Any, u"レセプト印刷2024"},
    {kFirst, 201806, nullptr, Aichi::Any, PublicAid::Any, u"レセプト印刷"},
    {kFirst, 202410, u"23", Aichi::NotThree, PublicAid::Any, u"レセプト印刷2018aimakai"},
    {kFirst, 202410, u"13", Aichi::Any, PublicAid::Set, u"東京助成レセプト印刷"},
    {kFirst, 202410, u"17", Aichi::Any, PublicAid::Set, u"石川県の公費レセプト印刷"},
    {kFirst, 202410, nullptr, Aichi::Any, PublicAid::Any, u"レセプト印刷2018"},
};

bool fits(const ScreenRow& row, const ScreenQuery& query) {
  const int month = query.month.year() * 100 + query.month.month();
  if (month < row.from || month >= row.before) return false;
  if (row.prefecture != nullptr && query.prefecture != QString::fromUtf16(row.prefecture)) return false;
  if (row.aichi == Aichi::NotThree && query.aichi == u"3") return false;
  return row.publicAid == PublicAid::Any || query.publicAid;
}

bool onOrAfter(const frame::EraDates& dates, const QString& claimMonth, QDate first) {
  const auto month = dates.claimMonthToDate(claimMonth);
  return month && *month >= first;
}

}  // namespace

QString printScreen(const ScreenQuery& query) {
  for (const ScreenRow& row : kScreens)
    if (fits(row, query)) return QString::fromUtf16(row.screen);
  return QString();
}

bool isMonth2024(const frame::EraDates& dates, const QString& claimMonth) {
  return onOrAfter(dates, claimMonth, QDate(2024, 10, 1));
}

bool isMonth2020Dec(const frame::EraDates& dates, const QString& claimMonth) {
  return onOrAfter(dates, claimMonth, QDate(2020, 12, 1));
}

QString presetOption(const QString& screen, const frame::EraDates& dates, const QString& claimMonth,
                     const QString& summaryKind) {
  if (screen.endsWith(u"2024") || screen.endsWith(u"aimakai")) return QStringLiteral("Option9");
  if (screen != u"レセプト印刷2018") return QString();
  const bool ordinary = summaryKind == u"0";
  if (claimMonth.startsWith(u"令和"))
    return ordinary || isMonth2020Dec(dates, claimMonth) ? QStringLiteral("Option8")
                                                         : QStringLiteral("Option6");
  if (claimMonth.startsWith(u"平成")) return ordinary ? QStringLiteral("Option3") : QStringLiteral("Option4");
  return QString();
}

QStringList presetChecks(const QString& prefecture) {
  // One prefecture asks for the era word in the claim month of every form.
  if (prefecture == u"22") return {QStringLiteral("Check4"), QStringLiteral("Check6")};
  return {};
}

}  // namespace printing

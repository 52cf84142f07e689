// bench day DIR: a patient's visits and the sums of a month among all visits, a day's bookings.

#include <algorithm>
#include <cstdio>

#include "office/core/booking_book.h"
#include "platform/store/criteria_text.h"
#include "platform/store/database.h"
#include "platform/store/tables/bookings.h"
#include "platform/store/tables/visits.h"
#include "platform/text/utf16.h"
#include "records/core/visit_totals.h"
#include "tools/bench/bench_rows.h"
#include "tools/bench/commands.h"
#include "tools/bench/plain_query.h"

namespace bench {
namespace {

constexpr int kRuns = 9;
using Ids = std::vector<qint64>;

store::Result<store::RecordSet> openTable(const QString& path, const store::Table& table) {
  auto database = store::Database::open(path);
  if (!database) return database.fault();
  return store::RecordSet::open(*database, text::utf16(table.name()));
}

/// Narrows and sorts as a list does: each step on the result of the one before.
store::Result<store::RecordSet> narrowed(store::RecordSet& from, const QStringList& filters,
                                         const QString& sort) {
  from.setFilter(filters.front());
  auto set = from.openRecordset();
  for (const QString& filter : filters.mid(1)) {
    if (!set) return set;
    set->setFilter(filter);
    set = set->openRecordset();
  }
  if (!set || sort.isEmpty()) return set;
  set->setSort(sort);
  return set->openRecordset();
}

/// The bookmarks of all rows from the first to the last, after the first window of a list has been shown.
Ids shown(store::Result<store::RecordSet> set, const store::Column& column) {
  constexpr int kShownRows = 50;
  Ids ids;
  if (!set) return ids;
  for (int row = 0; row < std::min(kShownRows, set->recordCount()); ++row) (void)set->valueAt(row, column);
  for (int row = 0; row < set->recordCount(); ++row) {
    set->setAbsolutePosition(row);
    ids.push_back(set->bookmark());
  }
  return ids;
}

int failed(const char* what) {
  std::fprintf(stderr, "%s\n", what);
  return 1;
}

int patientsVisits(const QString& path) {
  const QString sort = visits::dateShadow + QStringLiteral(" ASC");
  PlainFile plain(path);
  // A whole key, and a part of one that fits ten patients.
  const QString keys[] = {patientKey(7), patientKey(70).chopped(1)};
  const auto narrowTo = [&](store::Result<store::RecordSet>& all, const QString& key) {
    return narrowed(*all, {store::likeCriterion(visits::patientSerial, key)}, sort);
  };
  Ids listed;
  const double first = middleMilliseconds(3, [&] {
    auto all = openTable(path, visits::table);
    if (all) listed = shown(narrowTo(all, keys[0]), visits::date);
  });
  figure("visits_of_patient_first", first, "ms");
  auto all = openTable(path, visits::table);
  if (!all) return failed("カルテ");
  for (const QString& key : keys) {
    Ids scanned;
    const QString scan =
        QStringLiteral("SELECT ID FROM カルテ WHERE ETC1 LIKE '%%1%' ORDER BY 治療日チェック, ID").arg(key);
    const double floor = middleMilliseconds(3, [&] { scanned = plain.numbers(scan); });
    const double again = middleMilliseconds(kRuns, [&] { listed = shown(narrowTo(all, key), visits::date); });
    std::sort(listed.begin(), listed.end());
    std::sort(scanned.begin(), scanned.end());
    if (listed != scanned || listed.empty()) return failed("a patient's visits differ from the scan's");
    figure("visits_of_patient_rows", static_cast<double>(listed.size()), "rows");
    besideFloor("visits_of_patient", again, floor);
  }
  return 0;
}

int sums(const QString& path, const char* name, const QString& month) {
  PlainFile plain(path);
  const QString scan =
      QStringLiteral(
          "SELECT count(*), sum(保険者負担金), sum(保険の一部負担金), sum(治療金額), sum(領収証チェック<>0), "
          "sum(新患<>0) FROM カルテ WHERE 治療日時 LIKE '%1%'")
          .arg(month);
  Ids plainSums;
  const double floor = middleMilliseconds(3, [&] { plainSums = plain.numbers(scan); });
  records::VisitTotals totals;
  const auto work = [&](store::Result<store::RecordSet> all) {
    const auto set = narrowed(*all, {store::prefixCriterion(visits::date, month)}, QString());
    if (const auto made = records::totalsOf(*set)) totals = *made;
  };
  const double first = middleMilliseconds(3, [&] { work(openTable(path, visits::table)); });
  const auto kept = store::Database::open(path);
  const double again = middleMilliseconds(kRuns, [&] { work(openTable(path, visits::table)); });
  const Ids ours = {totals.rows,      totals.insurer,  totals.share,
                    totals.treatment, totals.receipts, totals.newPatients};
  if (ours != plainSums) return failed("the sums differ from the scan's");
  const QByteArray stem(name);
  figure((stem + "_rows").constData(), static_cast<double>(totals.rows), "rows");
  besideFloor((stem + "_first").constData(), first, floor);
  besideFloor(stem.constData(), again, floor);
  return 0;
}

int bookings(const QString& path) {
  const frame::DayAsked day{2024, 10, 7};
  const QString scan = QStringLiteral(
      "SELECT ID FROM 予約 WHERE 予約年='2024' AND 予約月='10' AND 予約日='7' ORDER BY 予約時間, ID");
  PlainFile plain(path);
  Ids listed, scanned;
  const double floor = middleMilliseconds(3, [&] { scanned = plain.numbers(scan); });
  const double first = middleMilliseconds(3, [&] {
    auto all = openTable(path, bookings::table);
    if (all) listed = shown(office::bookingsOf(*all, day), bookings::time);
  });
  auto all = openTable(path, bookings::table);
  if (!all) return failed("予約");
  const double again =
      middleMilliseconds(kRuns, [&] { listed = shown(office::bookingsOf(*all, day), bookings::time); });
  std::sort(listed.begin(), listed.end());
  std::sort(scanned.begin(), scanned.end());
  if (listed != scanned || listed.empty()) return failed("a day's bookings differ from the scan's");
  figure("bookings_of_day_rows", static_cast<double>(listed.size()), "rows");
  besideFloor("bookings_of_day_first", first, floor);
  besideFloor("bookings_of_day", again, floor);
  return 0;
}

}  // namespace

int day(const QStringList& arguments) {
  if (arguments.size() != 1) {
    std::fputs("bench day DIR\n", stderr);
    return 2;
  }
  const QString visitsFile = arguments[0] + QStringLiteral("/カルテ2データ2000.mdb");
  if (const int status = bookings(arguments[0] + QStringLiteral("/予約2000.mdb"))) return status;
  if (const int status = sums(visitsFile, "sums_of_month", QStringLiteral("令和6年10月"))) return status;
  if (const int status = sums(visitsFile, "sums_of_year", QStringLiteral("令和6年"))) return status;
  return patientsVisits(visitsFile);
}

}  // namespace bench

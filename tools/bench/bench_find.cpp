// bench find DIR: substring searches, the next hit, a patient's visits, each beside a plain LIKE scan.

#include <cstdio>

#include "platform/store/criteria_text.h"
#include "platform/store/database.h"
#include "platform/store/record_set.h"
#include "platform/store/tables/patients.h"
#include "platform/store/tables/visits.h"
#include "platform/text/utf16.h"
#include "tools/bench/bench_rows.h"
#include "tools/bench/commands.h"
#include "tools/bench/plain_query.h"

namespace bench {
namespace {

constexpr int kRuns = 9;

text::Result<store::RecordSet> openTable(const QString& path, const store::Table& table) {
  auto database = store::Database::open(path);
  if (!database) return database.fault();
  return store::RecordSet::open(*database, text::utf16(table.name()));
}

int hits(store::RecordSet& set, const QString& criteria) {
  set.setFilter(criteria);
  const auto found = set.openRecordset();
  return found ? found->recordCount() : -1;
}

struct Search {
  const char* name;
  store::Column column;
  const char16_t* text;
};
constexpr Search kSearches[] = {{"find_name", patients::name, u"花子77"},
                                {"find_name_two_letters", patients::name, u"見本"},
                                {"find_kana", patients::kana, u"ｱｲ"},
                                {"find_address", patients::address[1], u"町3丁目17"}};

/// The first search of a run reads the column, the later ones compare in memory. The floor of all is the scan
/// of the same file; beside it stands the scan of a narrow table that holds nothing but the column.
int search(store::RecordSet& set, const QString& path, PlainFile& narrow, const Search& one) {
  const QString column = one.column, text = QString::fromUtf16(one.text);
  const QString criteria = store::likeCriterion(column, text);
  const QString like = QStringLiteral("SELECT ID FROM 臨床QV WHERE %1 LIKE '%%2%'").arg(column, text);
  PlainFile source(path);
  narrow.takeColumn(source, QStringLiteral("臨床QV"), column);
  int found = 0, scanned = 0;
  const double first = middleMilliseconds(1, [&] { found = hits(set, criteria); });
  const double again = middleMilliseconds(kRuns, [&] { found = hits(set, criteria); });
  const double scan = middleMilliseconds(3, [&] { scanned = PlainFile(path).run(like); });
  const double narrowScan = middleMilliseconds(kRuns, [&] { scanned = narrow.run(like); });
  if (found != scanned) {
    std::fprintf(stderr, "%s: %d rows, the scan gives %d\n", one.name, found, scanned);
    return 1;
  }
  const QByteArray name(one.name);
  figure((name + "_hits").constData(), found, "rows");
  besideFloor((name + "_first").constData(), first, scan);
  besideFloor(one.name, again, narrowScan);
  return 0;
}

}  // namespace

int find(const QStringList& arguments) {
  if (arguments.size() != 1) {
    std::fputs("bench find DIR\n", stderr);
    return 2;
  }
  const QString patientsFile = arguments[0] + QStringLiteral("/臨床QV2000N.mdb");
  const QString visitsFile = arguments[0] + QStringLiteral("/カルテ2データ2000.mdb");
  auto set = openTable(patientsFile, patients::table);
  auto visitSet = openTable(visitsFile, visits::table);
  if (!set || !visitSet) {
    std::fprintf(stderr, "%s\n", qUtf8Printable((set ? visitSet : set).fault().message));
    return 1;
  }
  PlainFile narrow{QString()};
  for (const Search& one : kSearches)
    if (const int status = search(*set, patientsFile, narrow, one)) return status;

  const QString next = store::likeCriterion(patients::name, QStringLiteral("花子"));
  set->moveFirst();
  figure("find_next", middleMilliseconds(99, [&] { (void)set->findNext(next); }), "ms");
  const QString key = patientKey(7);
  const QString criteria = store::likeCriterion(visits::patientSerial, key);
  const double first = middleMilliseconds(1, [&] { hits(*visitSet, criteria); });
  const double again = middleMilliseconds(kRuns, [&] { hits(*visitSet, criteria); });
  const double scan = middleMilliseconds(3, [&] {
    PlainFile(visitsFile).run(QStringLiteral("SELECT ID FROM カルテ WHERE ETC1 LIKE '%%1%'").arg(key));
  });
  besideFloor("find_visits_first", first, scan);
  besideFloor("find_visits", again, scan);
  return 0;
}

}  // namespace bench

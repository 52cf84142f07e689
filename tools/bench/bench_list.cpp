// bench list DIR: the claim list in its default order and in the printing order, each beside a plain query.

#include <QElapsedTimer>
#include <cstdio>

#include "platform/store/database.h"
#include "platform/store/record_set.h"
#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"
#include "tools/bench/commands.h"
#include "tools/bench/plain_query.h"

namespace bench {
namespace {

constexpr int kShownRows = 50;
const store::Column kShown[] = {claim::id,
                                claim::month,
                                claim::name,
                                claim::insuranceKind,
                                claim::insurerNumber,
                                claim::treatmentKind,
                                claim::total,
                                claim::claimed};

struct Listing {
  const char* name;
  const char16_t* filter;
  const char16_t* sort;
};
constexpr char16_t kPrinting[] = u"保険順位,保険の種類,保険者番号,被保険者との続柄 desc,被保険者のフリガナ";
constexpr Listing kListings[] = {{"list_default", u"", u"ID DESC"},
                                 {"list_printing", u"", kPrinting},
                                 {"list_month", u"申請年月='令和6年10月'", kPrinting}};

/// What a list shows from a position on; the values that a window of rows holds.
int show(const store::RecordSet& set, int from) {
  int letters = 0;
  for (int row = from; row < std::min(from + kShownRows, set.recordCount()); ++row)
    for (const store::Column& column : kShown) letters += static_cast<int>(set.valueAt(row, column).size());
  return letters;
}

QString plainText(const Listing& one) {
  const QStringList shown(std::begin(kShown), std::end(kShown));
  const QString filter = QString::fromUtf16(one.filter), sort = QString::fromUtf16(one.sort);
  return QStringLiteral("SELECT %1 FROM 保険申請 %2 ORDER BY %3 LIMIT %4")
      .arg(shown.join(u','), filter.isEmpty() ? QString() : QStringLiteral("WHERE ") + filter, sort)
      .arg(kShownRows);
}

/// A list knows how many rows it has, so the plain way counts them too.
QString plainCount(const Listing& one) {
  const QString filter = QString::fromUtf16(one.filter);
  return QStringLiteral("SELECT count(*) FROM 保険申請 ") +
         (filter.isEmpty() ? QString() : QStringLiteral("WHERE ") + filter);
}

text::Result<store::RecordSet> opened(const QString& path, const Listing& one) {
  auto database = store::Database::open(path);
  if (!database) return database.fault();
  auto set = store::RecordSet::open(*database, text::utf16(claim::firstHalf.name()));
  if (!set) return set.fault();
  set->setFilter(QString::fromUtf16(one.filter));
  set->setSort(QString::fromUtf16(one.sort));
  return set->openRecordset();
}

}  // namespace

int list(const QStringList& arguments) {
  if (arguments.size() != 1) {
    std::fputs("bench list DIR\n", stderr);
    return 2;
  }
  const QString path = arguments[0] + QStringLiteral("/保険申請2000_1.mdb");
  PlainFile(path).run(
      QStringLiteral("SELECT count(氏名) FROM 保険申請"));  // both ways find the file read before
  for (const Listing& one : kListings) {
    const double floor = middleMilliseconds(3, [&] {
      PlainFile plain(path);
      plain.run(plainCount(one));
      plain.run(plainText(one));
    });
    text::Result<store::RecordSet> set = text::Fault{};
    // Each run opens the file anew: nothing of the run before is left in memory.
    const double first = middleMilliseconds(3, [&] {
      set = text::Fault{};
      set = opened(path, one);
      if (set) show(*set, 0);
    });
    if (!set) {
      std::fprintf(stderr, "%s\n", qUtf8Printable(set.fault().message));
      return 1;
    }
    const QByteArray name(one.name);
    figure((name + "_rows").constData(), set->recordCount(), "rows");
    besideFloor((name + "_first50").constData(), first, floor);
    figure((name + "_again").constData(),
           middleMilliseconds(5,
                              [&] {
                                const auto again = opened(path, one);
                                if (again) show(*again, 0);
                              }),
           "ms");
    figure((name + "_last_row").constData(),
           middleMilliseconds(5,
                              [&] {
                                set->moveLast();
                                show(*set, set->recordCount() - kShownRows);
                              }),
           "ms");
  }
  return 0;
}

}  // namespace bench

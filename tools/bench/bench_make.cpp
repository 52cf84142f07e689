// bench make DIR PATIENTS VISITS CLAIMS BOOKINGS: fills a program folder, each table in one transaction.

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <cstdio>

#include "frame/core/installation.h"
#include "platform/store/bulk.h"
#include "tools/bench/bench_rows.h"
#include "tools/bench/commands.h"
#include "tools/bench/day_rows.h"

namespace bench {
namespace {

/// The folder that holds data/ and templates/, above the folder of this program.
QString sources() {
  QDir folder(QCoreApplication::applicationDirPath());
  while (!QFileInfo::exists(folder.filePath(QStringLiteral("data/fees/editions.csv"))))
    if (!folder.cdUp()) break;
  return folder.path();
}

struct Filling {
  const char* figureName;
  QString file, table;
  std::function<store::Done(const QString& path, const QString& table)> fill;
};

std::function<store::Done(const QString&, const QString&)> rows(int count, std::function<Row(int)> rowOf) {
  return [=](const QString& path, const QString& table) { return store::addRows(path, table, count, rowOf); };
}

}  // namespace

int make(const QStringList& arguments) {
  if (arguments.size() != 5) {
    std::fputs("bench make DIR PATIENTS VISITS CLAIMS BOOKINGS\n", stderr);
    return 2;
  }
  const QString& folder = arguments[0];
  const int patients = arguments[1].toInt(), visits = arguments[2].toInt(), claims = arguments[3].toInt(),
            bookings = arguments[4].toInt();
  const auto laidOut =
      frame::layOut(folder, sources() + QStringLiteral("/data"), sources() + QStringLiteral("/templates"));
  if (!laidOut) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(laidOut.fault().message));
    return 1;
  }
  const QString claimTable = QStringLiteral("保険申請");
  const Filling fillings[] = {
      {"make_patients", QStringLiteral("臨床QV2000N.mdb"), QStringLiteral("臨床QV"),
       rows(patients, patientRow)},
      {"make_visits", QStringLiteral("カルテ2データ2000.mdb"), QStringLiteral("カルテ"),
       [=](const QString& path, const QString& table) { return addVisits(path, table, visits, patients); }},
      {"make_claims_first", QStringLiteral("保険申請2000_1.mdb"), claimTable,
       rows(claims, [=](int number) { return firstHalfRow(number, patients); })},
      {"make_claims_second", QStringLiteral("保険申請2000_2.mdb"), claimTable, rows(claims, secondHalfRow)},
      {"make_bookings", QStringLiteral("予約2000.mdb"), QStringLiteral("予約"),
       [=](const QString& path, const QString& table) {
         return addBookings(path, table, bookings, patients);
       }}};
  for (const Filling& filling : fillings) {
    QElapsedTimer timer;
    timer.start();
    const auto done = filling.fill(folder + u'/' + filling.file, filling.table);
    if (!done) {
      std::fprintf(stderr, "%s\n", qUtf8Printable(done.fault().message));
      return 1;
    }
    figure(filling.figureName, static_cast<double>(timer.elapsed()) / 1000, "s");
  }
  return 0;
}

}  // namespace bench

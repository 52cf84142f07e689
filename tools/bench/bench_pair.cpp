// bench pair make|store|check DIR [STAMP]: the crash test of the two claim files, and the cost of a store
// beside a bare transaction over two files.

#include <sqlite3.h>

#include <QDir>
#include <QFile>
#include <cstdio>

#include "platform/store/bulk.h"
#include "platform/store/database.h"
#include "platform/store/integrity.h"
#include "platform/store/pair.h"
#include "tools/bench/commands.h"
#include "tools/bench/plain_query.h"

namespace bench {
namespace {

constexpr qint64 kPair = 77;
constexpr int kStores = 200;
const QString kTable = QStringLiteral("保険申請");
const QString kFirstStamp = QStringLiteral("備考");
const QString kSecondStamp = QStringLiteral("txt dummy20");

struct Files {
  QString first, second;
};

Files filesOf(const QString& folder) {
  return {folder + QStringLiteral("/保険申請2000_1.mdb"), folder + QStringLiteral("/保険申請2000_2.mdb")};
}

int fault(const text::Fault& fault) {
  std::fprintf(stderr, "%s\n", qUtf8Printable(fault.message));
  return 1;
}

int makePair(const Files& files) {
  for (const auto& [path, stamp] :
       {std::pair(files.first, kFirstStamp), std::pair(files.second, kSecondStamp)}) {
    QFile::remove(path);
    if (const auto made = store::createFresh(path, QFileInfo(path).fileName()); !made)
      return fault(made.fault());
    const auto added = store::addRows(
        path, kTable, {{{QStringLiteral("ID"), QString::number(kPair)}, {stamp, QStringLiteral("old")}}});
    if (!added) return fault(added.fault());
  }
  return 0;
}

int storePair(const Files& files, const QString& stamp) {
  auto pair = store::PairStore::open(files.first, files.second, kTable);
  if (!pair) return fault(pair.fault());
  if (const auto done = (*pair)->update(kPair, {{kFirstStamp, stamp}}, {{kSecondStamp, stamp}}); !done)
    return fault(done.fault());
  std::puts("stored");
  std::fflush(stdout);
  return 0;
}

int checkPair(const Files& files) {
  auto pair = store::PairStore::open(files.first, files.second, kTable);
  if (!pair) return fault(pair.fault());
  const auto halves = (*pair)->read(kPair);
  if (!halves) return fault(halves.fault());
  QStringList line = {halves->first.value(kFirstStamp), halves->second.value(kSecondStamp)};
  for (const QString& path : {files.first, files.second}) {
    const auto whole = store::checkIntegrity(path);
    line += whole ? QStringLiteral("ok") : whole.fault().message;
  }
  std::printf("%s\n", qUtf8Printable(line.join(QStringLiteral(" | "))));
  return 0;
}

/// A store of both halves with nothing but the engine: the same two rows in one transaction.
class BareStore {
 public:
  explicit BareStore(const Files& files) {
    sqlite3_open(QFile::encodeName(files.first).constData(), &m_handle);
    run(QStringLiteral("ATTACH '%1' AS second").arg(files.second));
    run(QStringLiteral("PRAGMA main.synchronous=FULL"));
    run(QStringLiteral("PRAGMA second.synchronous=FULL"));
  }
  ~BareStore() { sqlite3_close(m_handle); }
  void store(int stamp) {
    run(QStringLiteral("BEGIN IMMEDIATE"));
    run(QStringLiteral("UPDATE main.保険申請 SET 備考='%1' WHERE ID=77").arg(stamp));
    run(QStringLiteral("UPDATE second.保険申請 SET \"txt dummy20\"='%1' WHERE ID=77").arg(stamp));
    run(QStringLiteral("COMMIT"));
  }

 private:
  void run(const QString& sql) {
    sqlite3_exec(m_handle, sql.toUtf8().constData(), nullptr, nullptr, nullptr);
  }
  sqlite3* m_handle = nullptr;
};

/// Both kinds in turn, so that the disk treats them alike.
int timePair(const Files& files) {
  auto pair = store::PairStore::open(files.first, files.second, kTable);
  if (!pair) return fault(pair.fault());
  BareStore bare(files);
  std::vector<double> stores, floors;
  for (int number = 0; number < kStores; ++number) {
    const QString stamp = QString::number(number);
    stores.push_back(middleMilliseconds(1, [&] {
      (void)(*pair)->update(kPair, {{kFirstStamp, stamp}}, {{kSecondStamp, stamp}});
    }));
    // another stamp: the engine writes no page for a value that stands there already
    floors.push_back(middleMilliseconds(1, [&] { bare.store(kStores + number); }));
  }
  std::sort(stores.begin(), stores.end());
  std::sort(floors.begin(), floors.end());
  besideFloor("pair_store", stores[kStores / 2], floors[kStores / 2]);
  return 0;
}

}  // namespace

int pair(const QStringList& arguments) {
  const QString word = arguments.value(0);
  if (arguments.size() >= 2) {
    const Files files = filesOf(arguments[1]);
    if (word == u"make") return makePair(files);
    if (word == u"store" && arguments.size() == 3) return storePair(files, arguments[2]);
    if (word == u"check") return checkPair(files);
    if (word == u"time") return timePair(files);
  }
  std::fputs("bench pair make|store|check|time DIR [STAMP]\n", stderr);
  return 2;
}

}  // namespace bench

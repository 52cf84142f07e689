// bench recompute DIR N: reads, tallies, computes and stores N claims in one transaction, beside a run that
// reads and writes the same columns without reckoning.

#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <utility>

#include "claims/core/claim_file.h"
#include "claims/core/claim_store.h"
#include "platform/store/record_set.h"
#include "tools/bench/commands.h"

namespace bench {
namespace {

using claims::ClaimFile;
using claims::ClaimRecord;

constexpr int kRounds = 3;

text::Result<QVector<qint64>> firstClaims(const QString& path, int count) {
  auto database = store::Database::open(path);
  if (!database) return database.fault();
  auto rows = store::RecordSet::open(database.value(), QStringLiteral("保険申請"));
  if (!rows) return rows.fault();
  QVector<qint64> ids;
  for (int at = 0; at < rows->recordCount() && at < count; ++at)
    ids.append(rows->valueAt(at, QStringLiteral("ID")).toLongLong());
  return ids;
}

/// Reads each claim, changes it, writes what changed; all in one transaction. Milliseconds.
template <class Change>
text::Result<double> run(ClaimFile& file, const QVector<qint64>& ids, Change change) {
  QElapsedTimer timer;
  timer.start();
  const text::Done done = file.together([&]() -> text::Done {
    for (const qint64 id : ids) {
      const auto seen = file.read(id);
      if (!seen) return seen.fault();
      if (const auto stored = file.store(id, seen.value(), change(seen.value())); !stored) return stored;
    }
    return {};
  });
  if (!done) return done.fault();
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// The columns that a computed claim writes, all with one text, so that the run behind this one has as many
/// to write.
ClaimRecord overwritten(ClaimRecord claim) {
  for (const auto columns : {claims::calculatedColumns(), claims::calculatedColumnsSecond()})
    for (const store::Column& column : columns) claim.set(column, QStringLiteral("0"));
  return claim;
}

int fault(const text::Fault& fault) {
  std::fprintf(stderr, "%s\n", qPrintable(fault.message));
  return 1;
}

}  // namespace

int recompute(const QStringList& arguments) {
  if (arguments.size() < 2) return fault({QStringLiteral("bench recompute DIR N")});
  const QString& folder = arguments[0];
  const QString firstPath = folder + QStringLiteral("/保険申請2000_1.mdb");
  const auto ids = firstClaims(firstPath, arguments[1].toInt());
  if (!ids) return fault(ids.fault());
  auto file = ClaimFile::open(firstPath, folder + QStringLiteral("/保険申請2000_2.mdb"));
  if (!file) return fault(file.fault());

  const text::SystemClock clock;
  const frame::EraDates era(frame::EraCapability::Supported, clock);
  const claims::FeeFiles files(folder, folder + QStringLiteral("/料金設定2000.mdb"));
  claims::StoredFees fees;

  int withoutFees = 0;
  const auto recomputed = [&](const ClaimRecord& claim) {
    const claims::StoredClaim stored = claims::storeClaim(claim, {era, files, fees});
    if (stored.calculation) ++withoutFees;
    return stored.claim;
  };
  // The best of some rounds in turn: the two differ by a few microseconds a claim, a disk is not so
  // even.
  double plain = 0, computed = 0;
  for (int round = 0; round < kRounds; ++round) {
    for (const auto& [best, time] : {std::pair(&plain, run(*file, ids.value(), overwritten)),
                                     std::pair(&computed, run(*file, ids.value(), recomputed))}) {
      if (!time) return fault(time.fault());
      *best = round == 0 ? time.value() : std::min(*best, time.value());
    }
  }
  if (withoutFees != 0) return fault({QStringLiteral("%1 claims without a fee file").arg(withoutFees)});

  figure("recompute_claims", static_cast<double>(ids->size()), "claims");
  figure("recompute_total", computed, "ms");
  figure("recompute_read_write_alone", plain, "ms");
  figure("recompute_ratio", computed / plain, "x");
  return 0;
}

}  // namespace bench

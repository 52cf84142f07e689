#include "records/core/grid_claim.h"

#include "platform/store/criteria_text.h"
#include "platform/store/database.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kInOrder = u"order by ID"_s;

text::Result<store::RecordSet> tableOf(const QString& path) {
  auto database = store::Database::open(path);
  if (!database) return database.fault();
  return store::RecordSet::open(*database, u"保険申請"_s);
}

}  // namespace

text::Result<GridClaim> GridClaim::open(const frame::DataFolders& folders) {
  auto file = claims::ClaimFile::open(folders);
  if (!file) return file.fault();
  auto firsts = tableOf(folders[frame::folder::kClaims1]);
  if (!firsts) return firsts.fault();
  auto seconds = tableOf(folders[frame::folder::kClaims2]);
  if (!seconds) return seconds.fault();
  return GridClaim(std::move(*file), std::move(*firsts), std::move(*seconds));
}

// The contained-in pattern of a blank serial would find everybody's claims.
text::Result<store::RecordSet> GridClaim::of(const QString& patient, const QString& month) {
  m_firsts.setFilter((patient.isEmpty() ? u"ID = 0 "_s : store::likeCriterion(u"番号1"_s, patient)) +
                     kInOrder);
  auto claims = m_firsts.openRecordset();
  if (!claims || month.isEmpty()) return claims;
  claims->setFilter(store::likeCriterion(u"申請年月"_s, month) + kInOrder);
  return claims->openRecordset();
}

text::Result<store::RecordSet> GridClaim::take(qint64 id) {
  m_id = 0;
  auto read = m_file.read(id);
  if (!read) return read.fault();
  auto half = secondHalf(id);
  if (!half) return half;
  m_seen = std::move(*read);
  m_secondMissing = half->recordCount() == 0;
  m_id = id;
  return half;
}

text::Result<store::RecordSet> GridClaim::secondHalf(qint64 id) {
  m_seconds.setFilter(u"Id = %1"_s.arg(id));
  auto half = m_seconds.openRecordset();
  if (!half || half->recordCount() > 0) return half;
  // It may have been made meanwhile.
  if (const text::Done read = m_seconds.refresh(); !read) return read.fault();
  return m_seconds.openRecordset();
}

claims::ClaimRecord GridClaim::with(const claims::ClaimRecord& typed) const {
  claims::ClaimRecord claim = m_seen;
  for (auto column = typed.columns().cbegin(); column != typed.columns().cend(); ++column)
    claim.set(column.key(), column.value());
  return claim;
}

text::Done GridClaim::write(const claims::ClaimRecord& typed) {
  const text::Done done = m_file.together([&]() -> text::Done {
    if (m_secondMissing)
      if (const text::Done made = m_file.repairSecond(m_id); !made) return made;
    return m_file.store(m_id, m_seen, typed);
  });
  // Where this fails too, the next store compares with what was read before and is refused at worst.
  if (!done)
    if (auto now = m_file.read(m_id)) m_seen = *now;
  return done;
}

}  // namespace records

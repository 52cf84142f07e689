#include "records/core/grid_claim.h"

#include "platform/store/criteria_text.h"
#include "platform/store/database.h"
#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

QString inOrder() { return u"order by "_s + claim::id.text(); }

text::Result<store::RecordSet> openTable(const QString& path, const store::Table& table) {
  auto database = store::Database::open(path);
  if (!database) return database.fault();
  return store::RecordSet::open(*database, text::utf16(table.name()));
}

}  // namespace

text::Result<GridClaim> GridClaim::open(const frame::DataFolders& folders) {
  auto file = claims::ClaimFile::open(folders);
  if (!file) return file.fault();
  auto firsts = openTable(folders[frame::folder::kClaims1], claim::firstHalf);
  if (!firsts) return firsts.fault();
  auto seconds = openTable(folders[frame::folder::kClaims2], claim::secondHalf);
  if (!seconds) return seconds.fault();
  return GridClaim(std::move(*file), std::move(*firsts), std::move(*seconds));
}

// The contained-in pattern of a blank serial would find everybody's claims.
text::Result<store::RecordSet> GridClaim::of(const QString& patient, const QString& month) {
  const QString ofPatient =
      patient.isEmpty() ? claim::id.text() + u" = 0 "_s : store::likeCriterion(claim::patientSerial, patient);
  m_firsts.setFilter(ofPatient + inOrder());
  auto claims = m_firsts.openRecordset();
  if (!claims || month.isEmpty()) return claims;
  claims->setFilter(store::likeCriterion(claim::month, month) + inOrder());
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
  m_seconds.setFilter(u"%1 = %2"_s.arg(claim::secondId.text()).arg(id));
  auto half = m_seconds.openRecordset();
  if (!half || half->recordCount() > 0) return half;
  // It may have been made meanwhile.
  if (const text::Done read = m_seconds.refresh(); !read) return read.fault();
  return m_seconds.openRecordset();
}

claims::ClaimRecord GridClaim::with(const claims::ClaimRecord& typed) const {
  claims::ClaimRecord claim = m_seen;
  for (auto column = typed.columns().cbegin(); column != typed.columns().cend(); ++column)
    claim.setNamed(column.key(), column.value());
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

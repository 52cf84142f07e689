#pragma once

#include "claims/core/claim_file.h"
#include "platform/store/record_set.h"

namespace records {

/// The claims whose days the visit ledger lets fill in: found by patient and month, one of them taken into
/// the day grid, read and written as a whole.
class GridClaim {
 public:
  /// Opens both halves of the claims. A missing or damaged file is a fault.
  static text::Result<GridClaim> open(const frame::DataFolders& folders);

  /// The first halves of the patient's claims in the order of their IDs, of them those of the month
  /// ("令和6年" is any of that year) if one is given. A patient without a serial has none.
  text::Result<store::RecordSet> of(const QString& patient, const QString& month);

  /// Takes the claim into the grid; with 0 or after a fault the grid has none. Returns its second half, a set
  /// without rows if the file lacks it.
  text::Result<store::RecordSet> take(qint64 id);
  /// ID of the claim in the grid, 0 if there is none.
  qint64 id() const { return m_id; }
  /// The claim in the grid as it was read, with the typed columns in place of its own.
  claims::ClaimRecord with(const claims::ClaimRecord& typed) const;
  /// Writes what was typed, both halves in one transaction; a missing second half is added. Refused if
  /// another computer changed the claim meanwhile; the next write then compares with the changed claim.
  text::Done write(const claims::ClaimRecord& typed);

 private:
  GridClaim(claims::ClaimFile file, store::RecordSet firsts, store::RecordSet seconds)
      : m_file(std::move(file)), m_firsts(std::move(firsts)), m_seconds(std::move(seconds)) {}
  text::Result<store::RecordSet> secondHalf(qint64 id);

  claims::ClaimFile m_file;
  store::RecordSet m_firsts, m_seconds;  ///< whole tables
  qint64 m_id = 0;
  bool m_secondMissing = false;
  claims::ClaimRecord m_seen;  ///< the claim as it was read
};

}  // namespace records

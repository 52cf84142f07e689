#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "claims/core/claim_record.h"
#include "frame/core/data_folders.h"
#include "platform/store/pair.h"

namespace claims {

/// The two claim files as one: claims are read and written with both halves at once, in one transaction.
class ClaimFile {
 public:
  static text::Result<ClaimFile> open(const QString& firstPath, const QString& secondPath);
  static text::Result<ClaimFile> open(const frame::DataFolders& folders);

  /// Both halves in one record, ID among the columns. A missing second half reads as NULL columns.
  text::Result<ClaimRecord> read(qint64 id) const;
  /// Writes the columns of `changed` that differ from `seen` (the claim as it was read). Refused with the
  /// engine's text where another computer changed the claim meanwhile. Columns of no table are left out.
  text::Done store(qint64 id, const ClaimRecord& seen, const ClaimRecord& changed);
  /// Adds a claim: a row in each half with one ID, written to the second half's link column (txt dummy1) too.
  /// Returns the ID.
  text::Result<qint64> add(const ClaimRecord& claim);
  text::Done remove(qint64 id);
  /// Makes the second half that a claim lacks: ID, link, and the first four notes with a blank.
  text::Done repairSecond(qint64 id);
  /// Runs the calls of `work` in one transaction.
  text::Done together(const std::function<text::Done()>& work);

 private:
  explicit ClaimFile(std::unique_ptr<store::PairStore> pair);
  std::unique_ptr<store::PairStore> m_pair;
};

}  // namespace claims

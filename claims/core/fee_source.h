#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QHash>
#include <QString>

#include "claims/core/fee_edition.h"
#include "platform/text/result.h"

namespace claims {

/// Where editions come from.
class FeeSource {
 public:
  virtual ~FeeSource() = default;
  /// loadFees: the ruling row (highest ID) of the file at the path. A file that cannot be opened is a
  /// fault in the engine's words.
  virtual text::Result<FeeEdition> load(const QString& path) = 0;
};

/// Editions read from the fee files. An edition stays in memory until its file changes, so that a month's
/// recompute opens each file once. A file is looked at for a change once a second at most.
class StoredFees final : public FeeSource {
 public:
  text::Result<FeeEdition> load(const QString& path) override;

 private:
  struct Entry {
    QElapsedTimer looked;
    QDateTime changed;
    FeeEdition edition;
  };
  QHash<QString, Entry> m_read;
};

}  // namespace claims

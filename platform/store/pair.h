#pragma once

#include <QHash>
#include <QString>
#include <functional>
#include <memory>

#include "platform/store/database.h"

namespace store {

/// Writes both halves of a record pair (same ID, two files) in ONE transaction over both attached files,
/// rollback journal, full sync: after a kill or power cut either both halves are new or both are old.
class PairStore {
 public:
  using Columns = QHash<QString, Value>;

  /// Opens the two files; the table has the same name in both.
  static Result<std::unique_ptr<PairStore>> open(const QString& firstPath, const QString& secondPath,
                                                 const QString& table);
  ~PairStore();

  /// Adds a row to each half; both carry the new ID, which is returned. Columns left out are NULL.
  Result<qint64> add(const Columns& first, const Columns& second);
  /// Writes the given columns of both halves of the pair. `seenFirst` and `seenSecond`, where given, are
  /// the values as they were read: a half that changed meanwhile refuses the store with the engine's text.
  Done update(qint64 id, const Columns& first, const Columns& second, const Columns* seenFirst = nullptr,
              const Columns* seenSecond = nullptr);
  Done remove(qint64 id);
  /// Makes the missing second half of a first half (with the given columns beside ID).
  Done repairSecond(qint64 id, const Columns& second);
  /// Both halves as they stand, columns of either half in one map each; a missing half reads empty.
  Result<std::pair<Columns, Columns>> read(qint64 id) const;
  /// Runs the calls of `work` inside one transaction (a month's recompute); a fault rolls all back.
  Done together(const std::function<Done()>& work);

 private:
  PairStore();
  struct State;
  std::unique_ptr<State> m_state;
};

}  // namespace store

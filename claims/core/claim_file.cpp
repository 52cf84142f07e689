#include "claims/core/claim_file.h"

#include <QSet>

#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"

namespace claims {

using namespace Qt::StringLiterals;

namespace {

using Columns = store::PairStore::Columns;

/// The link that the second half keeps next to its ID until the claim is stored for the first time; then the
/// column belongs to the print setting.
constexpr store::Column kLink = claim::periodFrom;

/// Names of the columns of a half but ID.
QSet<QString> columnsOf(const store::Table& half) {
  QSet<QString> columns;
  for (const store::ColumnRow& column : half.columns()) columns.insert(text::utf16(column.name));
  columns.remove(claim::id);
  return columns;
}

const QSet<QString>& firstColumns() {
  static const QSet<QString> columns = columnsOf(claim::firstHalf);
  return columns;
}
const QSet<QString>& secondColumns() {
  static const QSet<QString> columns = columnsOf(claim::secondHalf);
  return columns;
}

/// The columns of a record that a half has.
Columns half(const ClaimRecord& claim, const QSet<QString>& names) {
  Columns columns;
  columns.reserve(names.size());
  const auto& all = claim.columns();
  for (auto it = all.cbegin(); it != all.cend(); ++it)
    if (names.contains(it.key())) columns.insert(it.key(), it.value());
  return columns;
}

/// Whether a value is to be written. NULL and blank are the same to the user; only in 施術科目 a blank that
/// is not NULL means something: the claim was stored.
bool differs(const QString& column, const QString& seen, const QString& value) {
  if (seen != value) return true;
  return seen.isNull() && !value.isNull() && column == claim::subject.text();
}

}  // namespace

ClaimFile::ClaimFile(std::unique_ptr<store::PairStore> pair) : m_pair(std::move(pair)) {}

text::Result<ClaimFile> ClaimFile::open(const QString& firstPath, const QString& secondPath) {
  auto pair = store::PairStore::open(firstPath, secondPath, text::utf16(claim::firstHalf.name()));
  if (!pair) return pair.fault();
  return ClaimFile(std::move(pair.value()));
}

text::Result<ClaimFile> ClaimFile::open(const frame::DataFolders& folders) {
  return open(folders[frame::folder::kClaims1], folders[frame::folder::kClaims2]);
}

text::Result<ClaimRecord> ClaimFile::read(qint64 id) const {
  auto halves = m_pair->read(id);
  if (!halves) return halves.fault();
  return ClaimRecord(std::move(halves->first), halves->second);
}

text::Done ClaimFile::store(qint64 id, const ClaimRecord& seen, const ClaimRecord& changed) {
  Columns first, second;
  const auto& all = changed.columns();
  for (auto it = all.cbegin(); it != all.cend(); ++it) {
    if (!differs(it.key(), seen.named(it.key()), it.value())) continue;
    if (firstColumns().contains(it.key()))
      first.insert(it.key(), it.value());
    else if (secondColumns().contains(it.key()))
      second.insert(it.key(), it.value());
  }
  // Each half looks at the columns that it has.
  const Columns& asSeen = seen.columns();
  return m_pair->update(id, first, second, &asSeen, &asSeen);
}

text::Result<qint64> ClaimFile::add(const ClaimRecord& claim) {
  Columns first = half(claim, firstColumns()), second = half(claim, secondColumns());
  qint64 id = 0;
  const text::Done done = m_pair->together([&]() -> text::Done {
    const auto added = m_pair->add(first, second);
    if (!added) return added.fault();
    id = added.value();
    if (!second.value(kLink).isEmpty()) return {};  // the print setting has taken the column over
    return m_pair->update(id, {}, {{kLink, QString::number(id)}});
  });
  if (!done) return done.fault();
  return id;
}

text::Done ClaimFile::remove(qint64 id) { return m_pair->remove(id); }

text::Done ClaimFile::repairSecond(qint64 id) {
  Columns second{{kLink, QString::number(id)}};
  for (int note = 1; note <= 4; ++note) second.insert(claim::spareMemo[note], u" "_s);
  return m_pair->repairSecond(id, second);
}

text::Done ClaimFile::together(const std::function<text::Done()>& work) { return m_pair->together(work); }

}  // namespace claims

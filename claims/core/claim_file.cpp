#include "claims/core/claim_file.h"

#include <QSet>

#include "platform/store/catalogue.h"

namespace claims {
namespace {

using Columns = store::PairStore::Columns;

constexpr char16_t kFirstFile[] = u"保険申請2000_1.mdb";
constexpr char16_t kSecondFile[] = u"保険申請2000_2.mdb";
constexpr char16_t kTable[] = u"保険申請";
/// The link that the second half keeps beside its ID; later the column of a print setting.
constexpr char16_t kLink[] = u"txt dummy1";

QSet<QString> columnsOf(const char16_t* file) {
  QSet<QString> columns;
  for (const store::TableRow& table : store::catalogue()) {
    if (QStringView(table.file) != QStringView(file) || QStringView(table.table) != QStringView(kTable))
      continue;
    for (const store::ColumnRow& column : table.columns) columns.insert(QString::fromUtf16(column.name));
  }
  columns.remove(QStringLiteral("ID"));
  return columns;
}

const QSet<QString>& firstColumns() {
  static const QSet<QString> columns = columnsOf(kFirstFile);
  return columns;
}
const QSet<QString>& secondColumns() {
  static const QSet<QString> columns = columnsOf(kSecondFile);
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

/// Whether a value is to be written. NULL and blank are the same to the user; only 施術科目 tells a stored
/// claim by a blank that is not NULL.
bool differs(const QString& column, const QString& seen, const QString& value) {
  if (seen != value) return true;
  return seen.isNull() && !value.isNull() && column == u"施術科目";
}

}  // namespace

ClaimFile::ClaimFile(std::unique_ptr<store::PairStore> pair) : m_pair(std::move(pair)) {}

text::Result<ClaimFile> ClaimFile::open(const QString& firstPath, const QString& secondPath) {
  auto pair = store::PairStore::open(firstPath, secondPath, QString::fromUtf16(kTable));
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
    if (!differs(it.key(), seen.get(it.key()), it.value())) continue;
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
  const QString link = QString::fromUtf16(kLink);
  qint64 id = 0;
  const text::Done done = m_pair->together([&]() -> text::Done {
    const auto added = m_pair->add(first, second);
    if (!added) return added.fault();
    id = added.value();
    if (!second.value(link).isEmpty()) return {};  // the print setting has taken the column over
    return m_pair->update(id, {}, {{link, QString::number(id)}});
  });
  if (!done) return done.fault();
  return id;
}

text::Done ClaimFile::remove(qint64 id) { return m_pair->remove(id); }

text::Done ClaimFile::repairSecond(qint64 id) {
  Columns second{{QString::fromUtf16(kLink), QString::number(id)}};
  for (int n = 1; n <= 4; ++n) second.insert(QStringLiteral("memo dummy%1").arg(n), QStringLiteral(" "));
  return m_pair->repairSecond(id, second);
}

text::Done ClaimFile::together(const std::function<text::Done()>& work) { return m_pair->together(work); }

}  // namespace claims

#include "platform/store/table_copy.h"

#include <algorithm>
#include <numeric>

#include "platform/store/collation.h"
#include "platform/text/fold.h"

namespace store {
namespace {

std::u16string foldedCell(QStringView text) {
  std::u16string cell;
  text::foldForComparison(text, cell);
  cell.push_back(u'\0');
  return cell;
}

}  // namespace

void FoldedColumn::append(QStringView text) {
  text::foldForComparison(text, m_text);
  m_text.push_back(u'\0');
  m_starts.push_back(m_text.size());
  m_null.push_back(text.isNull());
}

void FoldedColumn::replace(size_t row, QStringView text) {
  const std::u16string cell = foldedCell(text);
  const size_t old = m_starts[row + 1] - m_starts[row];
  m_text.replace(m_starts[row], old, cell);
  m_null[row] = text.isNull();
  shift(row + 1, static_cast<std::ptrdiff_t>(cell.size()) - static_cast<std::ptrdiff_t>(old));
}

void FoldedColumn::erase(size_t row) {
  const size_t old = m_starts[row + 1] - m_starts[row];
  m_text.erase(m_starts[row], old);
  m_null.erase(m_null.begin() + static_cast<std::ptrdiff_t>(row));
  m_starts.erase(m_starts.begin() + static_cast<std::ptrdiff_t>(row));
  shift(row, -static_cast<std::ptrdiff_t>(old));
}

void FoldedColumn::shift(size_t fromRow, std::ptrdiff_t by) {
  if (by == 0) return;
  for (size_t row = fromRow; row < m_starts.size(); ++row) m_starts[row] += static_cast<size_t>(by);
}

void FoldedColumn::markContaining(std::u16string_view needle, std::vector<char>& marks) const {
  const std::u16string_view all(m_text);
  size_t row = 0;
  for (size_t hit = all.find(needle); hit != all.npos && row < rows();) {
    if (m_starts[row + 1] <= hit)
      row = static_cast<size_t>(
                std::upper_bound(m_starts.begin() + static_cast<std::ptrdiff_t>(row), m_starts.end(), hit) -
                m_starts.begin()) -
            1;
    if (row >= rows()) return;
    marks[row] = !m_null[row];
    hit = all.find(needle, m_starts[row + 1]);
  }
}

uint32_t SortTexts::number(QStringView text) {
  if (text.isNull()) return kNull;
  constexpr size_t kEnoughToJudge = 4096;
  const bool mostDiffer = ++m_asked > kEnoughToJudge && m_texts.size() > m_asked / 2;
  if (!mostDiffer) {
    const auto known = m_known.constFind(QString::fromRawData(text.data(), text.size()));
    if (known != m_known.constEnd()) return *known;
  }
  const uint32_t made = static_cast<uint32_t>(m_texts.size());
  m_texts.emplace_back(text.data(), text.size());
  if (!mostDiffer) m_known.insert(m_texts.back(), made);
  return made;
}

const QByteArray& SortTexts::key(uint32_t number, bool byValue) {
  if (m_keys.size() < m_texts.size()) m_keys.resize(m_texts.size());
  QByteArray& key = m_keys[number];
  if (key.isNull())
    key = byValue ? numberSortKey(m_texts[number].toLongLong()) : japaneseSortKey(m_texts[number]);
  return key;
}

std::vector<qint64>& TableCopy::ownIds() {
  if (m_ids.use_count() > 1) m_ids = std::make_shared<std::vector<qint64>>(*m_ids);
  return *m_ids;
}

QVector<int> TableCopy::missing(const QVector<int>& searched, const QVector<int>& sorted) const {
  QVector<int> columns;
  for (const int column : searched)
    if (!m_searched.contains(column) && !columns.contains(column)) columns += column;
  for (const int column : sorted)
    if (!m_sorted.contains(column) && !columns.contains(column)) columns += column;
  return columns;
}

Result<bool> TableCopy::loadUnbrokenIds(StatementCache& statements) {
  const QString table = quotedName(schema().table());
  Result<Statement*> ends = statements.get(
      QStringLiteral(
          "SELECT (SELECT count(*) FROM %1), (SELECT min(\"ID\") FROM %1), (SELECT max(\"ID\") FROM %1)")
          .arg(table));
  if (!ends) return ends.fault();
  if (const Result<bool> row = (*ends)->step(); !row) return row.fault();
  const qint64 count = (*ends)->number(0), first = (*ends)->number(1), last = (*ends)->number(2);
  (*ends)->rewind();
  if (count > 0 && last - first + 1 != count) return false;
  m_ids = std::make_shared<std::vector<qint64>>(static_cast<size_t>(count));
  std::iota(m_ids->begin(), m_ids->end(), first);
  m_haveIds = true;
  return true;
}

Done TableCopy::load(StatementCache& statements, const QVector<int>& searched, const QVector<int>& sorted) {
  const QVector<int> columns = missing(searched, sorted);
  if (columns.isEmpty()) {
    if (m_haveIds) return {};
    const Result<bool> unbroken = loadUnbrokenIds(statements);
    if (!unbroken) return unbroken.fault();
    if (*unbroken) return {};
  }
  QString sql = QStringLiteral("SELECT \"ID\"");
  for (const int column : columns) sql += QLatin1Char(',') + quotedName(schema().name(column));
  sql += QStringLiteral(" FROM ") + quotedName(schema().table()) + QStringLiteral(" ORDER BY \"ID\"");
  Result<Statement> rows = Statement::prepare(statements.handle(), statements.path(), sql);
  if (!rows) return rows.fault();

  std::vector<qint64> ids;
  std::vector<FoldedColumn> folded(static_cast<size_t>(columns.size()));
  std::vector<SortColumn> coded(static_cast<size_t>(columns.size()));
  std::vector<std::pair<bool, bool>> wanted;
  for (const int column : columns)
    wanted.emplace_back(searched.contains(column) && !m_searched.contains(column),
                        sorted.contains(column) && !m_sorted.contains(column));
  for (;;) {
    const Result<bool> row = rows->step();
    if (!row) return row.fault();
    if (!row.value()) break;
    ids.push_back(rows->number(0));
    for (int place = 0; place < columns.size(); ++place) {
      const bool yesNo = schema().type(columns[place]) == ColumnType::YesNo;
      const QStringView text = yesNo ? (rows->number(place + 1) ? u"-1" : u"0") : rows->view(place + 1);
      const size_t at = static_cast<size_t>(place);
      if (wanted[at].first) folded[at].append(text);
      if (wanted[at].second) coded[at].append(text);
    }
  }
  if (m_haveIds && ids != *m_ids) {  // another program wrote between: all columns must be of one moment
    m_searched.clear();
    m_sorted.clear();
    m_haveIds = false;
    return load(statements, searched, sorted);
  }
  m_ids = std::make_shared<std::vector<qint64>>(std::move(ids));
  m_haveIds = true;
  for (int place = 0; place < columns.size(); ++place) {
    const size_t at = static_cast<size_t>(place);
    if (wanted[at].first) m_searched.emplace(columns[place], std::move(folded[at]));
    if (wanted[at].second) m_sorted.emplace(columns[place], std::move(coded[at]));
  }
  return {};
}

Done TableCopy::rowWritten(qint64 id) {
  if (!m_haveIds) return {};
  const Result<Row> read = m_file.read(id);
  if (!read) return read.fault();
  const Row& row = *read;
  const auto place = std::lower_bound(m_ids->begin(), m_ids->end(), id);
  const size_t at = static_cast<size_t>(place - m_ids->begin());
  const bool known = place != m_ids->end() && *place == id;
  if (!known && at != m_ids->size()) {  // an ID in the middle: rare enough to read all again
    m_haveIds = false;
    m_searched.clear();
    m_sorted.clear();
    return {};
  }
  if (!known) ownIds().push_back(id);
  for (auto& [column, cells] : m_searched) {
    if (known)
      cells.replace(at, row[column]);
    else
      cells.append(row[column]);
  }
  for (auto& [column, cells] : m_sorted) {
    if (known)
      cells.replace(at, row[column]);
    else
      cells.append(row[column]);
  }
  return {};
}

void TableCopy::rowRemoved(qint64 id) {
  const auto place = std::lower_bound(m_ids->begin(), m_ids->end(), id);
  if (place == m_ids->end() || *place != id) return;
  const std::ptrdiff_t at = place - m_ids->begin();
  std::vector<qint64>& ids = ownIds();
  ids.erase(ids.begin() + at);
  for (auto& [column, cells] : m_searched) cells.erase(static_cast<size_t>(at));
  for (auto& [column, cells] : m_sorted) cells.erase(static_cast<size_t>(at));
}

}  // namespace store

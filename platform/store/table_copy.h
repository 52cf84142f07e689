#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "platform/store/table_file.h"

namespace store {

/// One column of a table in memory as searches compare it: the folded texts of all rows end to end.
class FoldedColumn {
 public:
  void append(QStringView text);
  void replace(size_t row, QStringView text);
  void erase(size_t row);

  size_t rows() const { return m_null.size(); }
  bool isNull(size_t row) const { return m_null[row]; }
  std::u16string_view text(size_t row) const {
    return std::u16string_view(m_text).substr(m_starts[row], m_starts[row + 1] - m_starts[row] - 1);
  }
  /// Marks every row whose text holds the needle: one pass over the joined texts.
  void markContaining(std::u16string_view needle, std::vector<char>& marks) const;

 private:
  void shift(size_t fromRow, std::ptrdiff_t by);
  std::u16string m_text;  ///< each text ends in a NUL
  std::vector<size_t> m_starts{0};
  std::vector<char> m_null;
};

/// One column of a table in memory as sorting compares it: a number a row, one number a different text.
class SortColumn {
 public:
  static constexpr uint32_t kNull = 0;

  void append(QStringView text) { m_codes.push_back(code(text)); }
  void replace(size_t row, QStringView text) { m_codes[row] = code(text); }
  void erase(size_t row) { m_codes.erase(m_codes.begin() + static_cast<std::ptrdiff_t>(row)); }

  uint32_t codeOf(size_t row) const { return m_codes[row]; }
  /// The texts by number; number 0 is NULL.
  const std::vector<QString>& texts() const { return m_texts; }
  /// Place for the sort keys of the texts, made when first compared.
  std::vector<QByteArray>& keys() const { return m_keys; }

 private:
  uint32_t code(QStringView text);
  std::vector<uint32_t> m_codes;
  std::vector<QString> m_texts{QString()};
  QHash<QString, uint32_t> m_byText;
  mutable std::vector<QByteArray> m_keys;
};

/// Memory copy of the searched and sorted columns of one table, row by row in ID order. Filled column by
/// column when first asked; the owner patches it with its own writes and drops it when another program wrote.
/// A search over it is some 20 to 50 times faster than any scan of the file.
class TableCopy {
 public:
  explicit TableCopy(TableFile file) : m_file(std::move(file)) {}

  const TableSchema& schema() const { return m_file.schema(); }
  /// Reads what is missing of the columns, in one pass over the file.
  Done load(StatementCache& statements, const QVector<int>& searched, const QVector<int>& sorted);

  const std::vector<qint64>& ids() const { return m_ids; }
  const FoldedColumn& searched(int column) const { return m_searched.at(column); }
  const SortColumn& sorted(int column) const { return m_sorted.at(column); }

  /// Takes over a row that this program wrote: reads it again.
  Done rowWritten(qint64 id);
  void rowRemoved(qint64 id);

 private:
  QVector<int> missing(const QVector<int>& searched, const QVector<int>& sorted) const;

  TableFile m_file;
  bool m_haveIds = false;
  std::vector<qint64> m_ids;
  std::unordered_map<int, FoldedColumn> m_searched;
  std::unordered_map<int, SortColumn> m_sorted;
};

}  // namespace store

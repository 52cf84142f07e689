#pragma once

#include <QHashFunctions>
#include <QString>
#include <array>
#include <cstddef>
#include <span>
#include <stdexcept>

namespace store {

enum class ColumnType { Counter, Text255, LongText, Integer, YesNo };

/// A column as the catalogue holds it.
struct ColumnRow {
  char16_t name[20];  ///< as in the file, closed by a zero
  ColumnType type;
  bool added;         ///< came with a growth run, not with the first schema
  unsigned hash = 0;  ///< of the name; makes the search of the compiler short
};

/// Columns of one type, written as the comma-separated list of their names with series as "d1..d31", upwards
/// or downwards.
struct ColumnsText {
  ColumnType type;
  bool added;
  const char16_t* names;
};

class Column;
class Series;

/// A table of the catalogue. Its columns are asked for by name at compile time: a name that the table lacks
/// does not compile.
class Table {
 public:
  constexpr Table(const char16_t* name, std::span<const ColumnRow> columns)
      : m_name(name), m_columns(columns) {}

  constexpr const char16_t* name() const { return m_name; }
  constexpr std::span<const ColumnRow> columns() const { return m_columns; }
  consteval Column operator[](const char16_t* column) const;
  /// The columns stem+first .. stem+last, in the order of their numbers.
  consteval Series series(const char16_t* stem, int first, int last) const;

 private:
  const char16_t* m_name;
  std::span<const ColumnRow> m_columns;
};

/// A column of a table of the catalogue. There is no other way to one than its table.
class Column {
 public:
  constexpr const Table& table() const { return *m_table; }
  constexpr const char16_t* name() const { return row().name; }
  constexpr ColumnType type() const { return row().type; }
  /// The name as a text; it shares the catalogue's letters.
  QString text() const { return QString::fromRawData(reinterpret_cast<const QChar*>(row().name), m_length); }
  operator QString() const { return text(); }
  friend constexpr bool operator==(const Column&, const Column&) = default;
  friend size_t qHash(const Column& column, size_t seed = 0) {
    return qHashMulti(seed, static_cast<const void*>(column.m_table), column.m_index);
  }

 private:
  friend class Table;
  friend class Series;
  constexpr Column(const Table& table, int index) : m_table(&table), m_index(index) {
    while (row().name[m_length] != u'\0') ++m_length;
  }
  constexpr const ColumnRow& row() const { return m_table->columns()[static_cast<std::size_t>(m_index)]; }

  const Table* m_table;
  int m_index;
  int m_length = 0;
};

/// Columns that differ by their number alone: 治療内容1 to 治療内容31.
class Series {
 public:
  constexpr int first() const { return m_first; }
  constexpr int count() const { return m_count; }
  constexpr const Table& table() const { return *m_table; }
  /// The column of a number. A number outside of the series does not compile, or throws std::out_of_range.
  constexpr Column operator[](int number) const {
    if (number < m_first || number >= m_first + m_count)
      throw std::out_of_range("no such column of a series");
    return Column(*m_table, m_places[static_cast<std::size_t>(number - m_first)]);
  }

 private:
  friend class Table;
  static constexpr int kMaxCount = 31;
  constexpr Series(const Table& table, int first, int count)
      : m_table(&table), m_first(first), m_count(count) {
    if (count < 1 || count > kMaxCount) throw std::out_of_range("a series has 1 to 31 columns");
  }
  const Table* m_table;
  int m_first;
  int m_count;
  std::array<short, kMaxCount> m_places{};
};

namespace detail {

constexpr bool equal(const char16_t* a, const char16_t* b) {
  for (; *a == *b; ++a, ++b)
    if (*a == u'\0') return true;
  return false;
}

constexpr unsigned hashOf(const char16_t* name) {
  unsigned hash = 2166136261u;
  for (; *name != u'\0'; ++name) hash = (hash ^ *name) * 16777619u;
  return hash;
}

/// Index of a name among the columns, -1 where it is none.
constexpr int find(std::span<const ColumnRow> columns, const char16_t* name) {
  const unsigned hash = hashOf(name);
  const ColumnRow* const rows = columns.data();
  const int count = static_cast<int>(columns.size());
  for (int i = 0; i < count; ++i)
    if (rows[i].hash == hash && equal(rows[i].name, name)) return i;
  return -1;
}

/// A name of the catalogue's texts, or the two ends of a series.
struct Entry {
  char16_t stem[20] = {};
  int length = 0;
  int first = 0, last = 0;  ///< of a series; both 0: a plain name
};

constexpr bool isDigit(char16_t letter) { return letter >= u'0' && letter <= u'9'; }

/// Reads "name" or "stem1..stem31" and moves `at` behind it.
consteval Entry readEntry(const char16_t*& at) {
  Entry entry;
  while (*at != u'\0' && *at != u',' && *at != u'.') entry.stem[entry.length++] = *at++;
  if (*at == u'.') {
    int digits = entry.length;
    while (isDigit(entry.stem[digits - 1])) --digits;
    for (int i = digits; i < entry.length; ++i) entry.first = entry.first * 10 + (entry.stem[i] - u'0');
    for (int i = digits; i < entry.length; ++i) entry.stem[i] = u'\0';
    entry.length = digits;
    at += 2 + digits;  // the dots and the stem once more
    while (isDigit(*at)) entry.last = entry.last * 10 + (*at++ - u'0');
    if (entry.first == 0 || entry.last == 0) throw "a series has a number at both ends";
  }
  if (*at == u',') ++at;
  if (entry.length == 0) throw "a column needs a name";
  return entry;
}

constexpr int sizeOf(const Entry& entry) {
  const int span = entry.last - entry.first;
  return (span < 0 ? -span : span) + 1;
}

consteval std::size_t countColumns(std::span<const ColumnsText> texts) {
  std::size_t count = 1;  // ID
  for (const ColumnsText& text : texts)
    for (const char16_t* at = text.names; *at != u'\0';) count += sizeOf(readEntry(at));
  return count;
}

/// Writes the digits of a number.
constexpr void writeNumber(char16_t* end, int number) {
  int digits = 1;
  for (int rest = number; rest >= 10; rest /= 10) ++digits;
  for (; digits > 0; number /= 10) end[--digits] = static_cast<char16_t>(u'0' + number % 10);
}

constexpr ColumnRow named(const Entry& entry, ColumnType type, bool added) {
  ColumnRow row{{}, type, added, 0};
  for (int i = 0; i < entry.length; ++i) row.name[i] = entry.stem[i];
  return row;
}

}  // namespace detail

/// The rows of a table from the texts it is written down with; ID comes first.
template <const auto& Texts>
consteval auto columnRows() {
  std::array<ColumnRow, detail::countColumns(Texts)> rows{};
  std::size_t next = 0;
  rows[next++] = {u"ID", ColumnType::Counter, false, 0};
  for (const ColumnsText& text : Texts) {
    for (const char16_t* at = text.names; *at != u'\0';) {
      const detail::Entry entry = detail::readEntry(at);
      const int step = entry.first <= entry.last ? 1 : -1;
      for (int i = 0; i < detail::sizeOf(entry); ++i) {
        ColumnRow& row = rows[next++] = detail::named(entry, text.type, text.added);
        if (entry.first > 0) detail::writeNumber(row.name + entry.length, entry.first + i * step);
      }
    }
  }
  for (ColumnRow& row : rows) row.hash = detail::hashOf(row.name);
  return rows;
}

consteval Column Table::operator[](const char16_t* column) const {
  const int index = detail::find(m_columns, column);
  if (index < 0) throw "the table has no such column";
  return Column(*this, index);
}

consteval Series Table::series(const char16_t* stem, int first, int last) const {
  detail::Entry entry;
  for (; stem[entry.length] != u'\0'; ++entry.length) entry.stem[entry.length] = stem[entry.length];
  Series series(*this, first, last - first + 1);
  for (int number = first; number <= last; ++number) {
    ColumnRow row = detail::named(entry, ColumnType::Text255, false);
    detail::writeNumber(row.name + entry.length, number);
    const int index = detail::find(m_columns, row.name);
    if (index < 0) throw "the table lacks a column of the series";
    series.m_places[static_cast<std::size_t>(number - first)] = static_cast<short>(index);
  }
  return series;
}

}  // namespace store

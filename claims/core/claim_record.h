#pragma once

#include <QHash>
#include <QString>
#include <array>
#include <string>
#include <utility>

namespace claims {

/// A column's name from a literal of the program, without a copy: the literal outlives every record.
inline QString columnName(const char16_t* literal) {
  return QString::fromRawData(reinterpret_cast<const QChar*>(literal),
                              static_cast<qsizetype>(std::char_traits<char16_t>::length(literal)));
}

/// ClaimRecord: one patient's claim for one month and one kind of treatment, the columns of both halves by
/// name in one flat map (no column name stands in both halves but ID). A null text is NULL in the file.
class ClaimRecord {
 public:
  ClaimRecord() = default;
  /// The columns of both halves.
  ClaimRecord(QHash<QString, QString> first, const QHash<QString, QString>& second)
      : m_columns(std::move(first)) {
    m_columns.insert(second);
  }

  QString get(const QString& column) const { return m_columns.value(column); }
  void set(const QString& column, const QString& value) { m_columns.insert(column, value); }
  /// Sets the column to NULL.
  void clear(const QString& column) { m_columns.insert(column, QString()); }
  bool has(const QString& column) const { return m_columns.contains(column); }
  /// A tick: -1, 1 or true.
  bool ticked(const QString& column) const {
    const QString value = get(column);
    return value == u"-1" || value == u"1" || value == u"true";
  }
  bool blank(const QString& column) const { return get(column).isEmpty(); }

  /// 治療内容1..31 and 往療距離1..31.
  QString code(int day) const { return get(codeColumn(day)); }
  QString visit(int day) const { return get(visitColumn(day)); }

  /// The column names of a day (1..31), built once for the run.
  static const QString& codeColumn(int day) {
    static const auto names = dayColumns(QStringLiteral("治療内容"));
    return names.at(static_cast<size_t>(day));
  }
  static const QString& visitColumn(int day) {
    static const auto names = dayColumns(QStringLiteral("往療距離"));
    return names.at(static_cast<size_t>(day));
  }

  const QHash<QString, QString>& columns() const { return m_columns; }
  /// Room for the given number of columns.
  void reserve(int columns) { m_columns.reserve(columns); }

 private:
  static std::array<QString, 32> dayColumns(const QString& stem) {
    std::array<QString, 32> names;
    for (int day = 1; day <= 31; ++day) names[static_cast<size_t>(day)] = stem + QString::number(day);
    return names;
  }

  QHash<QString, QString> m_columns;
};

}  // namespace claims

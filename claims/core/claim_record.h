#pragma once

#include <QHash>
#include <QString>

namespace claims {

/// ClaimRecord: one patient's claim for one month and one kind of treatment, the columns of both halves by
/// name in one flat map (no column name stands in both halves but ID). A null text is NULL in the file.
class ClaimRecord {
 public:
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
  QString code(int day) const { return get(QStringLiteral("治療内容") + QString::number(day)); }
  QString visit(int day) const { return get(QStringLiteral("往療距離") + QString::number(day)); }

  const QHash<QString, QString>& columns() const { return m_columns; }

 private:
  QHash<QString, QString> m_columns;
};

}  // namespace claims

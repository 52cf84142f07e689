#pragma once

#include <QHash>
#include <QString>
#include <utility>

#include "platform/store/tables/claims.h"

namespace claims {

/// ClaimRecord: one patient's claim for one month and one kind of treatment, the columns of both halves in
/// one flat map (no column name but ID occurs in both halves). A null text is NULL in the file.
class ClaimRecord {
 public:
  ClaimRecord() = default;
  /// The columns of both halves by their names.
  ClaimRecord(QHash<QString, QString> first, const QHash<QString, QString>& second)
      : m_columns(std::move(first)) {
    m_columns.insert(second);
  }

  QString get(const store::Column& column) const { return named(column); }
  void set(const store::Column& column, const QString& value) { setNamed(column, value); }
  /// Sets the column to NULL.
  void clear(const store::Column& column) { setNamed(column, QString()); }
  bool has(const store::Column& column) const { return m_columns.contains(column); }
  bool blank(const store::Column& column) const { return get(column).isEmpty(); }
  /// A tick: -1, 1 or true.
  bool ticked(const store::Column& column) const { return means(get(column)); }

  /// The same by a name that comes from outside: a request in JSON, a row of the files, the column that a
  /// control is bound to. An unknown name reads null.
  QString named(const QString& column) const { return m_columns.value(column); }
  void setNamed(const QString& column, const QString& value) { m_columns.insert(column, value); }

  /// 治療内容 and 往療距離 of a day, 1 to 31.
  QString code(int day) const { return get(claim::dayCode[day]); }
  QString visit(int day) const { return get(claim::dayVisit[day]); }

  const QHash<QString, QString>& columns() const { return m_columns; }
  /// Makes space for the given number of columns.
  void reserve(int columns) { m_columns.reserve(columns); }

 private:
  static bool means(const QString& value) { return value == u"-1" || value == u"1" || value == u"true"; }

  QHash<QString, QString> m_columns;
};

}  // namespace claims

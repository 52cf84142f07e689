#include "platform/store/row_walk.h"

namespace store {
namespace {

/// Passing over so many rows costs about as much as seeking the next one.
constexpr qint64 kCheaperToPass = 16;

QString textFrom(const TableSchema& schema, const QVector<int>& columns) {
  QString sql = QStringLiteral("SELECT \"ID\"");
  for (const int column : columns) sql += QLatin1Char(',') + quotedName(schema.name(column));
  return sql + QStringLiteral(" FROM ") + quotedName(schema.table()) +
         QStringLiteral(" WHERE \"ID\">=?1 ORDER BY \"ID\"");
}

}  // namespace

Done walkRows(Engine& engine, const TableSchema& schema, const std::vector<qint64>& ids,
              const QVector<int>& columns, const std::function<void(qint64 id, RowViews values)>& each) {
  Result<Statement> rows = Statement::prepare(engine.handle(), engine.path(), textFrom(schema, columns));
  if (!rows) return rows.fault();
  std::vector<QStringView> values(static_cast<size_t>(columns.size()));
  return engine.read([&]() -> Done {
    qint64 at = -kCheaperToPass;  // the row that the statement stands on
    for (const qint64 id : ids) {
      if (id - at > kCheaperToPass) {
        rows->rewind();
        rows->bind(1, id);
      }
      while (at < id) {
        const Result<bool> row = rows->step();
        if (!row) return row.fault();
        if (!*row) return {};
        at = rows->number(0);
      }
      if (at > id) continue;  // the row is gone
      for (int place = 0; place < columns.size(); ++place)
        values[static_cast<size_t>(place)] = rows->view(place + 1, schema.type(columns[place]));
      each(id, values);
    }
    rows->rewind();
    return {};
  });
}

}  // namespace store

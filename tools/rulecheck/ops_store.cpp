#include <QJsonArray>
#include <algorithm>

#include "platform/store/criteria.h"
#include "platform/store/order.h"
#include "platform/text/fold.h"
#include "tools/rulecheck/ops.h"

namespace rulecheck {
namespace {

/// A value of a request as a column keeps it: null is NULL, a tick -1 or 0.
store::Value columnText(const QJsonValue& value) {
  if (value.isNull() || value.isUndefined()) return {};
  if (value.isBool()) return value.toBool() ? QStringLiteral("-1") : QStringLiteral("0");
  if (value.isDouble()) return QString::number(value.toDouble(), 'g', 15);
  return value.toString();
}

/// The list behind ORDER BY, whatever stands before it.
QString sortList(const QString& text) {
  static const QString kOrderBy = QStringLiteral("order by");
  const qsizetype at = text.indexOf(kOrderBy, 0, Qt::CaseInsensitive);
  return at < 0 ? text : text.mid(at + kOrderBy.size());
}

bool fitsAny(const store::Criteria& criteria, const store::Value& value) {
  const std::u16string folded = text::foldForComparison(value).toStdU16String();
  return std::any_of(criteria.anyOf.begin(), criteria.anyOf.end(), [&](const auto& group) {
    return std::all_of(group.begin(), group.end(),
                       [&](const store::Term& term) { return store::fits(term, folded, value.isNull()); });
  });
}

}  // namespace

QJsonObject order(const QJsonObject& request, Context&) {
  QList<QHash<QString, store::Value>> rows;
  for (const QJsonValue& row : request["rows"].toArray()) {
    QHash<QString, store::Value> columns;
    const QJsonObject given = row.toObject();
    for (auto column = given.begin(); column != given.end(); ++column)
      columns.insert(column.key(), columnText(column.value()));
    rows += columns;
  }
  const store::TableRow* claims = store::tableOfFile(QStringLiteral("保険申請2000_1.mdb"));
  const auto ids = store::orderedIds(*claims, rows, sortList(request["sort"].toString()));
  if (!ids) return error(ids.fault().message);
  QJsonArray reply;
  for (const qint64 id : *ids) reply.append(id);
  return {{"ids", reply}};
}

QJsonObject match(const QJsonObject& request, Context&) {
  const auto criteria = store::parseCriteria(
      QStringLiteral("%1 like '%2'").arg(request["column"].toString(), request["pattern"].toString()));
  if (!criteria) return error(criteria.fault().message);
  QJsonArray hits;
  int index = 0;
  for (const QJsonValue& value : request["values"].toArray()) {
    if (fitsAny(*criteria, columnText(value))) hits.append(index);
    ++index;
  }
  return {{"hits", hits}};
}

}  // namespace rulecheck

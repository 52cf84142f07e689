#include "platform/store/criteria_text.h"

namespace store {

QString likeCriterion(const QString& column, const QString& text) {
  return column + QStringLiteral(" like '*") + text + QStringLiteral("*' ");
}

QString prefixCriterion(const QString& column, const QString& text) {
  return column + QStringLiteral(" like '") + text + QStringLiteral("*' ");
}

QString equalCriterion(const QString& column, const QString& text) {
  return column + QStringLiteral(" = '") + text + QStringLiteral("' ");
}

QString spanCriterion(const QString& column, const QString& text, const QString& end) {
  const QString from = column + QStringLiteral(" >= '") + text + QStringLiteral("' ");
  return end.isEmpty()
             ? from
             : from + QStringLiteral("and ") + column + QStringLiteral(" <= '") + end + QStringLiteral("' ");
}

}  // namespace store

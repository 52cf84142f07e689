#include "platform/store/criteria_text.h"

namespace store {

namespace {

QString term(const QString& column, QLatin1StringView comparison, const QString& text) {
  return column + QLatin1Char(' ') + comparison + QLatin1Char(' ') + quotedText(text) + QLatin1Char(' ');
}

constexpr QLatin1StringView kLike("like");
constexpr QLatin1Char kAnyRun('*');

}  // namespace

QString quotedText(const QString& text) {
  QString whole = text;
  whole.replace(QLatin1Char('\''), QLatin1String("''"));
  return QLatin1Char('\'') + whole + QLatin1Char('\'');
}

QString likeCriterion(const QString& column, const QString& text) {
  return term(column, kLike, kAnyRun + text + kAnyRun);
}

QString prefixCriterion(const QString& column, const QString& text) {
  return term(column, kLike, text + kAnyRun);
}

QString patternCriterion(const QString& column, const QString& text) { return term(column, kLike, text); }

QString equalCriterion(const QString& column, const QString& text) {
  return term(column, QLatin1StringView("="), text);
}

QString spanCriterion(const QString& column, const QString& text, const QString& end) {
  const QString from = term(column, QLatin1StringView(">="), text);
  return end.isEmpty() ? from : from + QLatin1String("and ") + term(column, QLatin1StringView("<="), end);
}

}  // namespace store

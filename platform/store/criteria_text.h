#pragma once

#include <QString>

namespace store {

/// "<column> like '*<text>*' ". The text is not escaped: a quote in it gives the engine's error text.
QString likeCriterion(const QString& column, const QString& text);
/// "<column> like '<text>*' "
QString prefixCriterion(const QString& column, const QString& text);
/// "<column> = '<text>' "
QString equalCriterion(const QString& column, const QString& text);
/// "<column> >= '<text>' ", and with an end "<column> >= '<text>' and <column> <= '<end>' ". Texts are
/// compared as texts, dates too.
QString spanCriterion(const QString& column, const QString& text, const QString& end = QString());

}  // namespace store

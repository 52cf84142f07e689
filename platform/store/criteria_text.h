#pragma once

#include <QString>

namespace store {

// A quote in the text always gives the engine's error text: it is written twice, which the criteria do not
// know, so that a text can never end its own quotes and add a condition.

/// The text between quotes, for criteria that are joined by hand.
QString quotedText(const QString& text);
/// "<column> like '*<text>*' "
QString likeCriterion(const QString& column, const QString& text);
/// "<column> like '<text>*' "
QString prefixCriterion(const QString& column, const QString& text);
/// "<column> like '<text>' ": wildcards are those of the text.
QString patternCriterion(const QString& column, const QString& text);
/// "<column> = '<text>' "
QString equalCriterion(const QString& column, const QString& text);
/// "<column> >= '<text>' ", and with an end "<column> >= '<text>' and <column> <= '<end>' ". The
/// numbers in the texts count by value, as dates need it.
QString spanCriterion(const QString& column, const QString& text, const QString& end = QString());

}  // namespace store

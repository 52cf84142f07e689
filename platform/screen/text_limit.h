#pragma once

#include <QString>

class QLineEdit;

namespace screen {

/// Number of characters as a user counts them: a surrogate pair is one.
int characterCount(const QString& text);
/// Holds a field to its limit in characters.
void holdToLimit(QLineEdit* edit, int limit);
/// Shows a text that may be longer than the limit, as stored ones may be; it can then only get shorter.
void showWhole(QLineEdit* edit, const QString& text);

}  // namespace screen

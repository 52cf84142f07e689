#pragma once

#include <QString>
#include <ostream>

/// Texts in the messages of failing tests.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << (text.isNull() ? "(null)" : '"' + text.toStdString() + '"');
}

#pragma once

#include <QString>
#include <QStringView>
#include <string>

namespace text {

/// The text as searches compare it: letter case, full and half width, and hiragana and katakana fall
/// together (ｻﾄｳ, サトウ and さとう are one; ＡＢＣ and abc are one). A half-width voiced mark joins its
/// letter. Voiced and unvoiced, small and large letters stay different. Comparisons in program code do
/// not use it: they are exact.
QString foldForComparison(QStringView text);

/// Appends the folded text to `out`; the way for long columns.
void foldForComparison(QStringView text, std::u16string& out);

}  // namespace text

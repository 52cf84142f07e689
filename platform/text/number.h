#pragma once

#include <QString>

namespace text {

/// The format "###,###,###": 1234567 is "1,234,567", 0 is the empty text.
QString thousands(qint64 number);

/// The numeric test on a typed text: an optional sign, digits with or without commas, at most one decimal
/// point; blanks around count for nothing. Full-width digits and signs count like ASCII ones, as typed
/// with a Japanese input method. A blank text is not numeric.
bool isNumeric(const QString& text);

/// The number that a text begins with, commas skipped, the fraction dropped; 0 for a text that begins with
/// none. "1,234円" is 1234, "3.9" is 3, "３割" is 3.
qint64 intOf(const QString& text);

/// The number of a text with its fraction, by the reading of intOf().
double numberOf(const QString& text);

/// The nearest whole number, halves to the even neighbour (the language's conversion to a whole number).
qint64 roundHalfEven(double number);

}  // namespace text

#pragma once

#include <QString>

namespace text {

/// ASCII, the blank and half-width kana in their full-width forms; a half-width kana and its voice mark
/// become one character (ｶﾞ to ガ). All else stays. The backslash becomes ＼.
QString toFullWidth(const QString& text);

/// The reverse: full-width letters, digits, signs, the blank and katakana in half width, a voiced kana as
/// two characters (ガ to ｶﾞ). Hiragana, kanji and kana without a half-width form stay.
QString toHalfWidth(const QString& text);

/// Full-width digits as ASCII digits; all else stays.
QString asciiDigits(const QString& text);

}  // namespace text

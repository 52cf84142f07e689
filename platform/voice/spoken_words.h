#pragma once

#include <QString>

namespace voice {

/// Runs of half-width kana in full width; full-width letters, digits and signs as ASCII.
QString readableWidth(const QString& text);

/// Signs that the voice passes over in silence or misreads, as words: ※ コメジルシ, ① マル1, ～ カラ; the
/// separator, brackets and line ends as pauses; rare forms of name kanji as their common ones.
QString spokenSigns(const QString& text);

/// Words of the trade that no general dictionary knows or that it reads wrongly, as katakana; the longest
/// word first.
QString tradeReadings(const QString& text);

}  // namespace voice

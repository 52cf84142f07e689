#pragma once

#include <QString>

namespace voice {

/// A text as it is handed to a voice that reads kanji: the separator becomes a short pause, ※ the word
/// コメジルシ. All else stays.
QString textWithPauses(const QString& text);

}  // namespace voice

#include "platform/voice/speech_text.h"

#include "platform/voice/voice_channel.h"

namespace voice {

QString textWithPauses(const QString& text) {
  QString result = text;
  while (result.endsWith(kSpeechSeparator)) result.chop(1);
  result.replace(kSpeechSeparator, QStringLiteral("、"));
  result.replace(u'※', QStringLiteral("コメジルシ"));
  return result;
}

}  // namespace voice

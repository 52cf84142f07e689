#pragma once

#include <QList>
#include <QStringList>

#include "platform/voice/voice_channel.h"

namespace voice {

/// One call of one channel, as it was made.
struct RecordedCall {
  QString operation;  ///< "VoiceStop", "VoiceSay", "VoiceGo", "SoundMessage", "FT_OutputVoiceText",
                      ///< "FT_StopSound"
  QString text;
  int mode = 0;

  bool operator==(const RecordedCall&) const = default;
};

/// A spy in the place of all three channels: one list of their calls in order. For tests.
class RecordingChannel final : public VoiceControl, public SoundLibrary, public FocusTalkLibrary {
 public:
  void VoiceStop() override { m_calls.append({QStringLiteral("VoiceStop"), {}, 0}); }
  void VoiceSay(const QString& text) override { m_calls.append({QStringLiteral("VoiceSay"), text, 0}); }
  void VoiceGo() override { m_calls.append({QStringLiteral("VoiceGo"), {}, 0}); }
  void SoundMessage(const QString& text, int mode) override {
    m_calls.append({QStringLiteral("SoundMessage"), text, mode});
  }
  void FT_OutputVoiceText(const QString& text, int mode) override {
    m_calls.append({QStringLiteral("FT_OutputVoiceText"), text, mode});
  }
  void FT_StopSound() override { m_calls.append({QStringLiteral("FT_StopSound"), {}, 0}); }

  const QList<RecordedCall>& calls() const { return m_calls; }
  /// Names of the operations called, in order.
  QStringList operations() const {
    QStringList names;
    for (const RecordedCall& call : m_calls) names += call.operation;
    return names;
  }
  /// What the voice control was given to say, in order.
  QStringList said() const {
    QStringList texts;
    for (const RecordedCall& call : m_calls)
      if (call.operation == u"VoiceSay") texts += call.text;
    return texts;
  }
  /// The same without what a later stop cut off.
  QStringList heardWhole() const {
    QStringList texts;
    for (const RecordedCall& call : m_calls) {
      if (call.operation == u"VoiceStop") texts.clear();
      if (call.operation == u"VoiceSay") texts += call.text;
    }
    return texts;
  }
  QString lastSaid() const { return said().isEmpty() ? QString() : said().last(); }
  void clear() { m_calls.clear(); }

 private:
  QList<RecordedCall> m_calls;
};

}  // namespace voice

#pragma once

#include <QString>

namespace voice {

/// The mode that every call of the two library channels carries.
inline constexpr int kSpeechMode = 2;
/// SpeechSeparator: separates the parts of a spoken text (character code 254).
inline constexpr QChar kSpeechSeparator{0x00FE};

/// The voice control: speech that is stopped, said and started.
class VoiceControl {
 public:
  virtual ~VoiceControl() = default;
  virtual void VoiceStop() = 0;
  virtual void VoiceSay(const QString& text) = 0;
  virtual void VoiceGo() = 0;
};

/// The first library channel.
class SoundLibrary {
 public:
  virtual ~SoundLibrary() = default;
  virtual void SoundMessage(const QString& text, int mode) = 0;
};

/// The second library channel.
class FocusTalkLibrary {
 public:
  virtual ~FocusTalkLibrary() = default;
  virtual void FT_OutputVoiceText(const QString& text, int mode) = 0;
  virtual void FT_StopSound() = 0;
};

}  // namespace voice

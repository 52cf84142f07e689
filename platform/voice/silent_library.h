#pragma once

#include "platform/voice/voice_channel.h"

namespace voice {

/// The library channels belong to speech products of another platform. Here they are not installed, and a
/// channel that is not installed says nothing; their place in the order stays.
class SilentSoundLibrary final : public SoundLibrary {
 public:
  void SoundMessage(const QString&, int) override {}
};

class SilentFocusTalkLibrary final : public FocusTalkLibrary {
 public:
  void FT_OutputVoiceText(const QString&, int) override {}
  void FT_StopSound() override {}
};

}  // namespace voice

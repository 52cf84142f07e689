#include "platform/voice/voice_guide.h"

namespace voice {
namespace {

/// A channel whose library is missing or fails must not keep the next one from speaking, and no fault of
/// speech ever reaches the user.
template <class Call>
void trap(Call call) noexcept {
  try {
    call();
  } catch (...) {
  }
}

}  // namespace

VoiceGuide::VoiceGuide(VoiceControl& control, SoundLibrary& sound, FocusTalkLibrary& focusTalk)
    : m_control(control), m_sound(sound), m_focusTalk(focusTalk) {}

void VoiceGuide::stopSpeech() {
  trap([&] { m_control.VoiceStop(); });
}

void VoiceGuide::speakField(const QString& caption, const QString& value) {
  speakFocus(caption + kSpeechSeparator + value);
}

void VoiceGuide::speakFocus(const QString& text, bool stopLibrary) {
  if (!isHeld()) stopSpeech();
  trap([&] { m_control.VoiceSay(text); });
  trap([&] { m_sound.SoundMessage(text, kSpeechMode); });
  if (stopLibrary && !isHeld()) trap([&] { m_focusTalk.FT_StopSound(); });
  trap([&] { m_focusTalk.FT_OutputVoiceText(text, kSpeechMode); });
}

void VoiceGuide::speakText(const QString& text) {
  trap([&] { m_control.VoiceSay(text); });
  trap([&] { m_control.VoiceGo(); });
}

void VoiceGuide::speakParts(QStringList parts) {
  parts.removeAll(QString());
  speakText(parts.join(kSpeechSeparator));
}

void VoiceGuide::speakHeading(const QStringList& parts) {
  stopSpeech();
  speakParts(parts);
}

void VoiceGuide::holdForOpening() { ++m_openings; }

void VoiceGuide::release() { m_openings = std::max(0, m_openings - 1); }

}  // namespace voice

#pragma once

#include <QString>
#include <QStringList>

#include "platform/voice/voice_channel.h"

namespace voice {

/// What all screens speak through: the three channels in their fixed order. No call blocks.
class VoiceGuide {
 public:
  VoiceGuide(VoiceControl& control, SoundLibrary& sound, FocusTalkLibrary& focusTalk);

  /// Cuts off what is being said.
  void stopSpeech();
  /// Focus of a control: stop, then caption + separator + value on all three channels.
  /// An empty value still speaks the caption and the separator.
  void speakField(const QString& caption, const QString& value);
  /// Focus of a control that speaks one text (button, option, fixed instruction, check box with its
  /// state): stop, then the text on all three channels. `stopLibrary`: FT_StopSound before the last
  /// channel (check boxes and lists).
  void speakFocus(const QString& text, bool stopLibrary = false);
  /// Texts of whole screens, messages and results: say and go on the voice control only, no stop.
  void speakText(const QString& text);
  /// The same for parts that are joined with the separator; blank ones are left out.
  void speakParts(QStringList parts);
  /// The same after a stop: a screen's heading and notes.
  void speakHeading(const QStringList& parts);

  /// Until the next call of release(), speakField and speakFocus queue after what is being said instead
  /// of cutting it: the first focus of a new window must not cut the sentence the window opens with.
  void holdForOpening();
  /// Ends one holdForOpening(): when all have ended the next focus cuts again. Two windows that open one
  /// after the other hold side by side.
  void release();
  bool isHeld() const { return m_openings > 0; }

 private:
  VoiceControl& m_control;
  SoundLibrary& m_sound;
  FocusTalkLibrary& m_focusTalk;
  int m_openings = 0;
};

}  // namespace voice

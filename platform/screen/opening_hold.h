#pragma once

#include <QObject>

namespace voice {
class VoiceGuide;
}

namespace screen {

/// Lets the sentence that a window opens with be heard to its end: until the user presses a key or a mouse
/// button, the texts of the focus wait for it instead of cutting it.
class OpeningHold : public QObject {
 public:
  explicit OpeningHold(voice::VoiceGuide& voice) : m_voice(voice) {}
  ~OpeningHold() override;
  void begin();
  void end();
  bool isHeld() const { return m_held; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  voice::VoiceGuide& m_voice;
  bool m_held = false;
};

}  // namespace screen

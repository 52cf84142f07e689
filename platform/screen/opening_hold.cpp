#include "platform/screen/opening_hold.h"

#include <QtWidgets/QtWidgets>

#include "platform/voice/voice_guide.h"

namespace screen {

OpeningHold::~OpeningHold() { end(); }

void OpeningHold::begin() {
  if (std::exchange(m_held, true)) return;
  m_voice.holdForOpening();
  qApp->installEventFilter(this);
}

void OpeningHold::end() {
  if (!std::exchange(m_held, false)) return;
  if (qApp) qApp->removeEventFilter(this);
  m_voice.release();
}

bool OpeningHold::eventFilter(QObject*, QEvent* event) {
  const auto type = event->type();
  if (type == QEvent::KeyPress || type == QEvent::ShortcutOverride || type == QEvent::MouseButtonPress) end();
  return false;
}

}  // namespace screen

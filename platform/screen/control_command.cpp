#include "platform/screen/control_command.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/captions.h"
#include "platform/screen/screen.h"

namespace screen {

CommandControl::CommandControl(Screen& screen, const ControlName& name, const QString& caption,
                               Handler action)
    : Control(screen, name, caption), m_run(action) {}

void CommandControl::makeButton(QWidget* parent) {
  m_button = new QPushButton(shownCaption(m_caption), parent);
  m_button->setObjectName(m_name);
  m_button->setAutoDefault(false);
  nameWidgets();
  QObject::connect(m_button, &QPushButton::clicked, m_button, [this] { run(); });
}

void CommandControl::setAction(QAction* action, const char16_t* caption) {
  m_action = action;
  m_ownEntryCaption = caption != nullptr;
  m_action->setText(shownCaption(caption ? QString::fromUtf16(caption) : m_caption));
  QObject::connect(m_action, &QAction::triggered, m_action, [this] { run(); });
}

void CommandControl::setKey(const QString& key) {
  const QKeySequence sequence(key);
  if (m_action) {
    m_action->setShortcut(sequence);
  } else if (m_button) {
    auto* shortcut = new QShortcut(sequence, &m_screen);
    QObject::connect(shortcut, &QShortcut::activated, m_button, [this] { run(); });
  }
}

QWidget* CommandControl::widget() const { return m_button; }

QList<QWidget*> CommandControl::focusWidgets() const {
  return m_button ? QList<QWidget*>{m_button} : QList<QWidget*>{};
}

void CommandControl::speak(voice::VoiceGuide& voice, QWidget*) const {
  voice.speakFocus(m_say.isEmpty() ? spokenCaption(m_caption) : m_say);
}

bool CommandControl::enter() {
  run();
  return true;
}

void CommandControl::setCaption(const QString& caption) {
  if (m_button) m_button->setText(shownCaption(caption));
  if (m_action && !m_ownEntryCaption) m_action->setText(shownCaption(caption));
  Control::setCaption(caption);
}

void CommandControl::setShown(bool shown) {
  Control::setShown(shown);
  if (m_action) m_action->setVisible(shown);
}

void CommandControl::setEnabled(bool enabled) {
  m_enabled = enabled;
  Control::setEnabled(enabled);
  if (m_action) m_action->setEnabled(enabled);
}

void CommandControl::run() {
  if (!m_enabled) return;
  m_screen.runCommand(m_name, m_run, m_index);
}

}  // namespace screen

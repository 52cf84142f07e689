#include "platform/screen/confirm_prompt.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/control.h"

namespace screen {
namespace detail {

PromptDeclaration::PromptDeclaration(const ConfirmRow& prompt)
    : screenRow{.name = prompt.name, .caption = prompt.caption, .rows = {}} {
  for (const Note& line : prompt.lines) rows.push_back(line);
  rows.push_back(Bar{});
  for (const PromptButton& button : prompt.buttons)
    rows.push_back(
        Command{.name = button.name, .caption = button.caption, .run = run<&ConfirmPrompt::press>});
  rows.push_back(EndBar{});
  screenRow.rows = rows;
}

}  // namespace detail

ConfirmPrompt::ConfirmPrompt(const ConfirmRow& prompt, const PromptActions& actions, Services& services)
    : PromptDeclaration(prompt), Screen(screenRow, services), m_prompt(prompt), m_actions(actions) {}

QStringList ConfirmPrompt::openingTexts() const {
  QStringList texts;
  for (const Note& line : m_prompt.lines) texts += QString::fromUtf16(line.caption.get());
  return texts;
}

void ConfirmPrompt::press() {
  const QPointer<ConfirmPrompt> alive(this);
  for (const PromptButton& button : m_prompt.buttons) {
    if (screen::objectName(button.name) != runningCommand()) continue;
    messages().interruptAndProtectNext();
    const QString action = QString::fromUtf16(button.action.get());
    if (const auto found = m_actions.constFind(action); found != m_actions.constEnd())
      found.value()(*this);
    else if (action != QStringView(kClosePrompt))
      qCritical("no action %s for a prompt", qUtf8Printable(action));
    break;
  }
  if (alive) navigator().unload(objectName());
}

void ConfirmPrompt::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape || m_prompt.buttons.size() < 2) return Screen::keyPressEvent(event);
  trigger(screen::objectName(m_prompt.buttons.back().name));
}

}  // namespace screen

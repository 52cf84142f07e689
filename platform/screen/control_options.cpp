#include "platform/screen/control_options.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/captions.h"
#include "platform/screen/layout.h"
#include "platform/screen/screen.h"

namespace screen {

OptionsControl::OptionsControl(Screen& screen, const Options& row, QWidget* parent)
    : Control(screen, row.name, QString::fromUtf16(row.caption.get())),
      m_choices(row.choices),
      m_frame(new QGroupBox(shownCaption(accessibleCaption(m_caption)), parent)),
      m_buttons(new QButtonGroup(m_frame)),
      m_marksDirty(row.marksDirty) {
  m_frame->setObjectName(m_name);
  Flow flow(m_frame);
  for (const Choice& choice : m_choices) {
    auto* button = new QRadioButton(shownCaption(QString::fromUtf16(choice.caption.get())), m_frame);
    button->setObjectName(objectName(choice.name));
    m_buttons->addButton(button, m_buttons->buttons().size());
    flow.add(button);
  }
  nameButtons();
  chooseTabStop();
  QObject::connect(m_buttons, &QButtonGroup::idToggled, m_frame, [this](int, bool on) {
    if (!on || isQuiet()) return;
    if (m_marksDirty) m_screen.markCheckChanged();
    edited();
  });
}

QWidget* OptionsControl::widget() const { return m_frame; }

QList<QWidget*> OptionsControl::focusWidgets() const {
  QList<QWidget*> widgets;
  for (QAbstractButton* button : m_buttons->buttons()) widgets += button;
  return widgets;
}

void OptionsControl::speak(voice::VoiceGuide& voice, QWidget* focus) const {
  const int id = m_buttons->id(qobject_cast<QAbstractButton*>(focus));
  if (id >= 0)
    voice.speakFocus(spokenCaption(QString::fromUtf16(m_choices[static_cast<size_t>(id)].caption.get())));
}

QString OptionsControl::text() const {
  const int id = m_buttons->checkedId();
  return id < 0 ? QString() : QString::fromUtf16(m_choices[static_cast<size_t>(id)].value);
}

void OptionsControl::setCaption(const QString& caption) {
  m_frame->setTitle(shownCaption(accessibleCaption(caption)));
  Control::setCaption(caption);
  nameButtons();
}

void OptionsControl::setPrefix(const QString& prefix) {
  Control::setPrefix(prefix);
  nameButtons();
}

QStringList OptionsControl::partCaptions() const {
  QStringList captions;
  for (const Choice& choice : m_choices)
    captions += accessibleCaption(QString::fromUtf16(choice.caption.get()));
  return captions;
}

void OptionsControl::namePartsAlone(const QSet<QString>& captions) {
  m_alone = captions;
  nameButtons();
}

bool OptionsControl::key(int key) {
  const bool forward = key == Qt::Key_Down || key == Qt::Key_Right;
  if (!forward && key != Qt::Key_Up && key != Qt::Key_Left) return false;
  const QList<QAbstractButton*> buttons = m_buttons->buttons();
  const qsizetype count = buttons.size();
  qsizetype at = 0;
  while (at < count && !buttons[at]->hasFocus()) ++at;
  for (qsizetype step = 1; step < count; ++step) {
    QAbstractButton* next = buttons[(at + (forward ? step : count - step)) % count];
    if (!next->isEnabled() || next->isHidden()) continue;
    next->setFocus(Qt::TabFocusReason);
    next->click();
    break;
  }
  chooseTabStop();
  return true;
}

void OptionsControl::showText(const QString& text) {
  m_buttons->setExclusive(false);
  for (QAbstractButton* button : m_buttons->buttons()) {
    const QString value = QString::fromUtf16(m_choices[static_cast<size_t>(m_buttons->id(button))].value);
    button->setChecked(!text.isEmpty() && value == text);
  }
  m_buttons->setExclusive(true);
  chooseTabStop();
}

void OptionsControl::chooseTabStop() {
  // Tab stops once at a group: at the chosen button, or at the first if none is chosen.
  const QList<QAbstractButton*> buttons = m_buttons->buttons();
  const QAbstractButton* stop = m_buttons->checkedButton() ? m_buttons->checkedButton() : buttons.value(0);
  for (QAbstractButton* button : buttons)
    button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

void OptionsControl::nameButtons() {
  nameWidgets();
  for (QAbstractButton* button : m_buttons->buttons()) {
    const QString own = partCaptions().value(m_buttons->id(button));
    button->setAccessibleName(m_alone.contains(own) ? own : accessibleName() + u' ' + own);
  }
}

}  // namespace screen

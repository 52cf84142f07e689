#include "platform/screen/control.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/captions.h"
#include "platform/screen/declare.h"
#include "platform/voice/voice_guide.h"

namespace screen {

namespace {

QString objectName(const char16_t* family, int index) {
  const QString name = QString::fromUtf16(family);
  return index < 0 ? name : name + u'(' + QString::number(index) + u')';
}

}  // namespace

QString objectName(const ControlName& name, int offset) {
  return objectName(name.family(), name.index() < 0 ? -1 : name.index() + offset);
}

QString ControlRef::name() const { return objectName(m_family, m_index); }

Control::Control(Screen& screen, const ControlName& name, const QString& caption, int offset)
    : m_screen(screen),
      m_name(objectName(name, offset)),
      m_index(name.index() < 0 ? -1 : name.index() + offset),
      m_caption(caption) {}

void Control::speak(voice::VoiceGuide& voice, QWidget*) const {
  if (m_say.isEmpty())
    voice.speakField(spokenCaption(m_caption), text());
  else
    voice.speakFocus(m_say);
}

void Control::putText(const QString& text) {
  quietly([&] { showText(text); });
}

void Control::setCaption(const QString& caption) {
  m_caption = caption;
  if (m_label) m_label->setText(shownCaption(caption));
  nameWidgets();
}

void Control::setLabel(QLabel* label) {
  m_label = label;
  nameWidgets();
}

void Control::setTip(const QString& tip) {
  m_tip = tip;
  for (QWidget* each : focusWidgets()) {
    each->setAccessibleDescription(tip);
    each->setToolTip(tip);
  }
}

void Control::setShown(bool shown) {
  m_shown = shown;
  if (widget()) widget()->setVisible(shown);
  if (m_label) m_label->setVisible(shown);
}

void Control::setEnabled(bool enabled) {
  if (widget()) widget()->setEnabled(enabled);
  if (m_label) m_label->setEnabled(enabled);
}

void Control::setRed(bool red) {
  m_red = red;
  QWidget* marked = m_label ? static_cast<QWidget*>(m_label) : widget();
  if (!marked) return;
  if (!red) return marked->setPalette(QPalette());
  // Readable on a light and on a dark desktop theme (contrast above 5:1 on both).
  const bool dark = marked->palette().color(QPalette::Window).lightness() < 128;
  const QColor color = dark ? QColor(0xFF, 0x9A, 0x9A) : QColor(0xB4, 0x00, 0x00);
  QPalette palette = marked->palette();
  palette.setColor(QPalette::WindowText, color);
  palette.setColor(QPalette::ButtonText, color);
  marked->setPalette(palette);
}

void Control::setPrefix(const QString& prefix) {
  m_prefix = prefix;
  nameWidgets();
}

void Control::setNumber(int number) {
  m_number = number;
  nameWidgets();
}

QString Control::accessibleName() const {
  const QString own =
      accessibleCaption(m_caption) + (m_number ? QStringLiteral(" %1").arg(m_number) : QString());
  return m_prefix.isEmpty() ? own : m_prefix + u' ' + own;
}

void Control::nameWidgets() {
  if (QWidget* named = namedWidget()) named->setAccessibleName(accessibleName());
  // A combo box loses a name of its own on the accessibility bus; it is heard by its label's.
  if (m_label) m_label->setAccessibleName(accessibleName());
}

void Control::bind(const QString& column, int source) {
  m_column = column;
  m_source = source;
}

void Control::load(const store::Value& value) {
  quietly([&] { showStored(value); });
  settle();
}

bool Control::fire(Handler handler) {
  if (!handler || m_quiet) return false;
  handler(m_screen, m_index);
  return true;
}

}  // namespace screen

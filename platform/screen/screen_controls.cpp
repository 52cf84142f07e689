// The half of Screen that addresses controls by their objectName.
#include <QtWidgets/QtWidgets>

#include "platform/screen/control_calendar.h"
#include "platform/screen/control_check.h"
#include "platform/screen/control_combo.h"
#include "platform/screen/control_frame.h"
#include "platform/screen/control_options.h"
#include "platform/screen/screen.h"
#include "platform/screen/screen_parts.h"

namespace screen {

QString Screen::text(const QString& control) const {
  const Control* found = m_parts->book.find(control);
  return found ? found->text() : QString();
}

void Screen::setText(const QString& control, const QString& text) {
  if (Control* found = m_parts->book.find(control)) found->putText(text);
}

bool Screen::checked(const QString& control) const {
  const auto* check = m_parts->book.find<CheckControl>(control);
  return check && check->checked();
}

void Screen::setChecked(const QString& control, bool on) {
  if (auto* check = m_parts->book.find<CheckControl>(control)) check->setChecked(on);
}

QString Screen::chosen(const QString& group) const {
  const auto* options = m_parts->book.find<OptionsControl>(group);
  return options ? options->text() : QString();
}

void Screen::choose(const QString& group, const QString& value) {
  if (auto* options = m_parts->book.find<OptionsControl>(group)) options->putText(value);
}

QStringList Screen::items(const QString& combo) const {
  const Control* found = m_parts->book.find(combo);
  return found ? found->items() : QStringList();
}

int Screen::chosenItem(const QString& combo) const {
  const Control* found = m_parts->book.find(combo);
  return found ? found->chosenItem() : -1;
}

void Screen::setItems(const QString& combo, const QStringList& items) {
  if (Control* found = m_parts->book.find(combo)) found->setItems(items);
}

void Screen::setRows(const QString& table, const QList<QStringList>& rows) {
  if (Control* found = m_parts->book.find(table)) found->setRows(rows);
}

QDate Screen::day(const QString& calendar) const {
  const auto* cursor = m_parts->book.find<CalendarControl>(calendar);
  return cursor ? cursor->day() : QDate();
}

void Screen::setDay(const QString& calendar, const QDate& day) {
  if (auto* cursor = m_parts->book.find<CalendarControl>(calendar)) cursor->setDay(day);
}

void Screen::setShown(const QString& control, bool shown) {
  if (Control* found = m_parts->book.find(control)) found->setShown(shown);
}

bool Screen::isControlShown(const QString& control) const {
  const Control* found = m_parts->book.find(control);
  return found && found->isShown();
}

void Screen::setEnabledControl(const QString& control, bool enabled) {
  if (Control* found = m_parts->book.find(control)) found->setEnabled(enabled);
}

void Screen::setCaption(const QString& control, const QString& caption) {
  if (Control* found = m_parts->book.find(control)) found->setCaption(caption);
}

QString Screen::caption(const QString& control) const {
  const Control* found = m_parts->book.find(control);
  return found ? found->caption() : QString();
}

void Screen::setTip(const QString& control, const QString& tip) {
  if (Control* found = m_parts->book.find(control)) found->setTip(tip);
}

void Screen::setCaptionRed(const QString& control, bool red) {
  if (Control* found = m_parts->book.find(control)) found->setRed(red);
}

bool Screen::isCaptionRed(const QString& control) const {
  const Control* found = m_parts->book.find(control);
  return found && found->isRed();
}

void Screen::focusOn(const QString& control) {
  Control* found = m_parts->book.find(control);
  if (!found || found->focusWidgets().isEmpty()) return;
  const QList<QWidget*> widgets = found->focusWidgets();
  QWidget* target = widgets.first();
  for (QWidget* each : widgets)  // of a group the button of that name, else the chosen one
    if (each->objectName() == control) target = each;
  if (auto* button = qobject_cast<QRadioButton*>(target); button && button->objectName() != control)
    if (QAbstractButton* chosen = button->group()->checkedButton()) target = chosen;
  if (TabsControl* tabs = m_parts->book.tabs()) tabs->showPageOf(target);
  // Before the first show the toolkit forgets the focus of a widget inside a scroll area.
  if (!m_parts->openingSaid) m_parts->firstFocus = target;
  giveFocus(*target);
}

void Screen::sayResult(const QStringList& parts) {
  messages().interruptAndProtectNext();
  say(parts);
}

void Screen::askFor(const QString& control) {
  focusOn(control);
  voice().speakHeading({caption(control)});
}

void giveFocus(QWidget& widget) {
  widget.setFocus(Qt::OtherFocusReason);
  const auto* list = qobject_cast<QComboBox*>(&widget);
  if (list && list->lineEdit()) list->lineEdit()->selectAll();
}

QString Screen::focused() const {
  const Control* control = m_parts->book.of(focusWidget());
  return control ? control->name() : QString();
}

void Screen::showPage(const QString& caption) {
  if (TabsControl* tabs = m_parts->book.tabs()) tabs->putText(caption);
}

void Screen::keepFocus() { m_parts->focus.keepFocus(); }

}  // namespace screen

#include "platform/screen/control_book.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/control_grid.h"

namespace screen {

void ControlBook::addName(const QString& name, Control& control) {
  const Control* const known = m_byName.value(name);
  // A menu entry without a button gives its own name to its action once more.
  if (known && known != &control) qCritical("two controls %s on this screen", qUtf8Printable(name));
  m_byName.insert(name, &control);
}

void ControlBook::enter(std::unique_ptr<Control> control) {
  addName(control->name(), *control);
  m_controls.push_back(std::move(control));
}

void ControlBook::addWidgets(Control& control) {
  for (const QWidget* widget : control.focusWidgets()) m_byWidget.insert(widget, &control);
}

Control* ControlBook::find(const QString& name) const {
  Control* control = m_byName.value(name);
  if (!control) qCritical("no control %s on this screen", qUtf8Printable(name));
  return control;
}

std::vector<Control*> ControlBook::boundTo(int source) const {
  std::vector<Control*> bound;
  for (const auto& control : m_controls)
    if (control->source() == source) bound.push_back(control.get());
  return bound;
}

std::vector<GridControl*> ControlBook::gridsOf(int source) const {
  std::vector<GridControl*> grids;
  for (const auto& control : m_controls)
    if (auto* grid = dynamic_cast<GridControl*>(control.get()); grid && grid->sourceNumber() == source)
      grids.push_back(grid);
  return grids;
}

}  // namespace screen

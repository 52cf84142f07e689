#pragma once

#include <QHash>
#include <QString>
#include <memory>
#include <vector>

#include "platform/screen/control.h"
#include "platform/screen/control_command.h"

namespace screen {

class GridControl;
class TabsControl;

/// All controls of one screen, in the order of its rows.
class ControlBook {
 public:
  template <class T>
  T& add(std::unique_ptr<T> control) {
    T& added = *control;
    enter(std::move(control));
    return added;
  }
  /// A second name of the same control: the objectName of a menu twin, a single option button.
  void addName(const QString& name, Control& control);
  void addWidgets(Control& control);

  /// nullptr if the screen has no such control: a mistake of the program, reported as critical, which is
  /// fatal in tests.
  Control* find(const QString& name) const;
  template <class T>
  T* find(const QString& name) const {
    return dynamic_cast<T*>(find(name));
  }
  Control* of(const QWidget* widget) const { return m_byWidget.value(widget); }
  const std::vector<std::unique_ptr<Control>>& all() const { return m_controls; }
  std::vector<Control*> boundTo(int source) const;
  std::vector<GridControl*> gridsOf(int source) const;

  void setStandard(CommandControl& command) { m_standard = &command; }
  CommandControl* standard() const { return m_standard; }
  void setTabs(TabsControl& tabs) { m_tabs = &tabs; }
  TabsControl* tabs() const { return m_tabs; }

 private:
  void enter(std::unique_ptr<Control> control);
  std::vector<std::unique_ptr<Control>> m_controls;
  QHash<QString, Control*> m_byName;
  QHash<const QWidget*, Control*> m_byWidget;
  CommandControl* m_standard = nullptr;
  TabsControl* m_tabs = nullptr;
};

}  // namespace screen

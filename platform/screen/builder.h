#pragma once

#include <QHash>
#include <QStringList>
#include <memory>
#include <vector>

#include "platform/screen/rows.h"

class QLabel;
class QMenu;
class QWidget;

namespace screen {

class CommandControl;
class Control;
class Screen;

/// Makes a screen's widgets from its rows, in row order, which is the tab order.
class Builder {
 public:
  explicit Builder(Screen& screen);
  ~Builder();
  void build();

  // One call a kind of row.
  void make(const TextField& row);
  void make(const TextRun& row);
  void make(const Combo& row);
  void make(const Check& row);
  void make(const Options& row);
  void make(const Command& row);
  void make(const Entry& row);
  void make(const Note& row);
  void make(const Page& row);
  void make(const EndPages& row);
  void make(const Group& row);
  void make(const EndGroup& row);
  void make(const Bar& row);
  void make(const EndBar& row);
  void make(const Grid& row);
  void make(const Table& row);
  void make(const Calendar& row);
  void make(const TabRow& row);

 private:
  struct Place;
  /// A control and the captions around it, to distinguish controls of one caption.
  struct Spot {
    Control* control;
    QString group, page;
  };

  template <class T>
  T& add(std::unique_ptr<T> control);
  template <class Field>
  static void setHandlers(Control& control, const Field& row);
  void makeMemo(const TextField& row);
  QLabel* makeLabel(Control& control);
  void placeCells(Control& control);
  void addEntry(CommandControl& command, const QString& name, const char16_t* under, const char16_t* caption);
  void addKey(CommandControl& command, const char16_t* key);
  QMenu* menu(const char16_t* caption);
  void finish(Control& control, const Binding& binding, const char16_t* tip);
  void finish(Control& control, const char16_t* tip);

  /// Number of the screen's source of a table.
  int sourceOf(const store::Table* table) const;
  /// The widget that new controls become children of.
  QWidget* host() const;
  void open(std::unique_ptr<Place> place);
  void close();
  void closeToBase();

  void tellApart();
  void nameParts();
  void chainTabs();
  void addKeys();

  Screen& m_screen;
  std::vector<std::unique_ptr<Place>> m_places;
  QHash<QString, QMenu*> m_menus;
  QStringList m_keys;
  QString m_group, m_page;
  std::vector<Spot> m_spots;
};

}  // namespace screen

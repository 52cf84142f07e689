#pragma once

#include <QList>
#include <QString>

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class QWidget;

namespace screen {

/// The caption of a tick that is wider than the display, in lines (the toolkit does not wrap it).
QString wrapped(const QString& text, int charactersInALine);
QString wrapped(const QString& text);
/// Width of a field for so many characters of the present font.
void fitWidth(QWidget* field, int characters);
void fitMemo(QWidget* field, int characters, int lines);
/// How many of the declared columns fit next to each other: all of them at the default font on a display 1280
/// pixels wide; fewer if a larger font or a smaller display leaves less space, so that nothing has to be
/// scrolled sideways. `character` is the width of a full-width character, `display` that of the display.
int fittingColumns(int declared, int character, int display);
int fittingColumns(int declared);

/// Fields side by side in columns of label and field; a wide one has a line of its own. Nothing is
/// placed by pixels: all sizes follow the font.
class Shelf {
 public:
  Shelf(QWidget* host, int columns);

  void addField(QLabel* label, QWidget* field);
  /// A control with its caption in itself (tick, button, text).
  void addSingle(QWidget* widget);
  /// A field that takes the rest of the line after its label.
  void addWideField(QLabel* label, QWidget* field);
  void addWide(QWidget* widget, bool grows = false);
  /// Pushes everything up if nothing grows.
  void close();
  QWidget* host() const { return m_host; }

 private:
  void newLine();
  QWidget* m_host;
  QGridLayout* m_grid;
  int m_columns;
  int m_line = 0;
  int m_at = 0;
  bool m_grows = false;
};

/// Controls in a row that wraps when the line is full.
class Flow {
 public:
  explicit Flow(QWidget* host);
  void add(QWidget* widget);
  QWidget* host() const { return m_host; }

 private:
  QWidget* m_host;
  QVBoxLayout* m_lines;
  int m_width;  ///< width that one line may take
  QHBoxLayout* m_line = nullptr;
  int m_at = 0;
  int m_used = 0;
};

/// A family of fields, so many in a line: each under its label, or after it if the line has room.
class Family {
 public:
  Family(QWidget* host, int perLine);
  void add(QLabel* label, QWidget* field);

 private:
  QGridLayout* m_grid;
  int m_perLine;
  bool m_labelsBeside;
  int m_count = 0;
};

}  // namespace screen

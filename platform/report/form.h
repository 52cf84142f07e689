#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

namespace report {

/// All lengths of a form are millimetres from the upper left corner of the paper.
struct Rect {
  double x = 0;
  double y = 0;
  double w = 0;
  double h = 0;
};

enum class Kind { Label, Text, Line, Box, Digit, Mark, Choice, Picture };
enum class Align { Left, Centre, Right };
enum class Typeface { Mincho, Gothic };
enum class Shape { Ellipse, Circle, Check };

/// One place of a choice mark: the mark is drawn here when the item's text is one of the words.
struct Placement {
  QStringList words;
  Rect rect;
};

/// A named item of a form, as the template stores it.
struct Item {
  QString name;
  Kind kind = Kind::Text;
  Rect rect;  ///< of a line: start, and the way to its end
  double pt = 9;
  Align align = Align::Left;
  Typeface face = Typeface::Mincho;
  Shape shape = Shape::Ellipse;
  int lines = 1;  ///< text wraps into at most so many lines
  bool vertical = false;
  bool hidden = true;
  double rule = 0.2;  ///< width of lines and marks, mm
  QString text;
  std::vector<Placement> placements;
  int block = 0;
  QString file;  ///< file that defines the item, for faults
  int sourceLine = 0;
};

struct Paper {
  QString word;   ///< as the templates name it, e.g. "A4", "JIS-B5"
  QString media;  ///< as the print service names it, e.g. "jis_b5_182x257mm"
  double w = 210;
  double h = 297;
};

/// A template as it was read, bases resolved, items in the order in which the paper is read.
struct Form {
  QString name;
  QString title;
  Paper paper;
  bool landscape = false;
  Typeface face = Typeface::Mincho;  ///< of items that name none
  QStringList files;                 ///< the file itself and its bases
  QStringList blocks;                ///< captions of the blocks; Item::block points here
  std::vector<Item> items;
  QHash<QString, int> index;

  double width() const { return landscape ? paper.h : paper.w; }
  double height() const { return landscape ? paper.w : paper.h; }
  /// Position of the item, -1 if the form has none of that name. Names differ by every letter:
  /// a full-width digit is another name than a half-width one.
  int find(const QString& item) const { return index.value(item, -1); }
  void reindex();
};

using FormPtr = std::shared_ptr<const Form>;

/// Whether the name is one of the families of the printed frame: Text, Box, Line and waku_ with a
/// number. Exactly these vanish when the data are printed on a preprinted form.
bool isFrameName(const QString& name);

const char* kindWord(Kind kind);

/// Papers that templates and printers may name. Japanese B sizes are the JIS ones: the ISO sizes of
/// the same letter are smaller, and no form of the practice is printed on them.
const std::vector<Paper>& papers();
/// nullptr for an unknown word.
const Paper* findPaper(const QString& word);

}  // namespace report

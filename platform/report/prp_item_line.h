#pragma once

#include "platform/report/form.h"
#include "platform/report/prp_line.h"

namespace report {

/// The items that one line describes, and where they go. An item line is its kind, a name or a family of
/// names, a rectangle, and options; a family shares the rectangle in equal cells.
struct ItemLine {
  std::vector<Item> items;
  QString neighbour;  ///< empty: at the end
  bool before = true;
};

/// Whether the word opens an item line.
bool isKindWord(const QString& word);
ItemLine readItemLine(const QString& kind, PrpLine& line, Typeface face);

QStringList readNames(PrpLine& line);
/// Takes one of the options that items of every kind share (pt, align, font, fit); false if there is none.
bool readOption(PrpLine& line, Item& item);

}  // namespace report

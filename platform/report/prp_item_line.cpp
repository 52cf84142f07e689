#include "platform/report/prp_item_line.h"

#include <array>

namespace report {

namespace {

struct KindRow {
  const char* word;
  Kind kind;
  Align align;
  bool hidden;
};

// Printed parts are shown, data are hidden until the program shows them.
constexpr std::array kKinds = {
    KindRow{"label", Kind::Label, Align::Left, false},
    KindRow{"box", Kind::Box, Align::Left, false},
    KindRow{"line", Kind::Line, Align::Left, false},
    KindRow{"text", Kind::Text, Align::Left, true},
    KindRow{"digits", Kind::Digit, Align::Centre, true},
    KindRow{"days", Kind::Digit, Align::Centre, true},
    KindRow{"mark", Kind::Mark, Align::Centre, true},
    KindRow{"choice", Kind::Choice, Align::Centre, true},
    KindRow{"picture", Kind::Picture, Align::Left, true},
};

const KindRow* findKind(const QString& word) {
  for (const KindRow& row : kKinds)
    if (word == QLatin1String(row.word)) return &row;
  return nullptr;
}

Rect readRect(PrpLine& line) {
  Rect rect;
  rect.x = line.number("the left edge in mm");
  rect.y = line.number("the upper edge in mm");
  rect.w = line.number("the width in mm");
  rect.h = line.number("the height in mm");
  if (rect.w <= 0 || rect.h <= 0) line.fail(QStringLiteral("a width and a height above zero"));
  return rect;
}

Rect readLineEnds(PrpLine& line) {
  Rect rect;
  rect.x = line.number("x of the start in mm");
  rect.y = line.number("y of the start in mm");
  rect.w = line.number("x of the end in mm") - rect.x;
  rect.h = line.number("y of the end in mm") - rect.y;
  return rect;
}

void readPlacements(PrpLine& line, Item& item) {
  while (line.nextIsText()) {
    Placement placement;
    placement.words = line.text("a word").split(u'|');
    placement.rect = readRect(line);
    item.placements.push_back(placement);
  }
  if (item.placements.empty()) line.fail(QStringLiteral("a word in quotes and its rectangle"));
  item.rect = item.placements.front().rect;
}

std::vector<Item> spread(const Item& family, const QStringList& names, bool down) {
  std::vector<Item> items;
  for (int i = 0; i < names.size(); ++i) {
    Item item = family;
    item.name = names[i];
    const double n = double(names.size());
    if (down) {
      item.rect.h = family.rect.h / n;
      item.rect.y = family.rect.y + i * item.rect.h;
    } else {
      item.rect.w = family.rect.w / n;
      item.rect.x = family.rect.x + i * item.rect.w;
    }
    items.push_back(item);
  }
  return items;
}

void setTexts(PrpLine& line, std::vector<Item>& items, const QStringList& texts) {
  if (texts.isEmpty()) return;
  if (texts.size() != 1 && texts.size() != qsizetype(items.size()))
    line.fail(QStringLiteral("one text, or one for each of the %1 items").arg(items.size()));
  for (size_t i = 0; i < items.size(); ++i)
    items[i].text = texts.size() == 1 ? texts[0] : texts[qsizetype(i)];
}

}  // namespace

bool isKindWord(const QString& word) { return findKind(word) != nullptr; }

QStringList readNames(PrpLine& line) {
  const auto names = expandNames(line.word("the name of an item"));
  if (!names) line.fail(QStringLiteral("a family like day1..31"));
  return *names;
}

bool readOption(PrpLine& line, Item& item) {
  if (line.take("left"))
    item.align = Align::Left;
  else if (line.take("centre"))
    item.align = Align::Centre;
  else if (line.take("right"))
    item.align = Align::Right;
  else if (line.take("mincho"))
    item.face = Typeface::Mincho;
  else if (line.take("gothic"))
    item.face = Typeface::Gothic;
  else if (line.take("shrink"))
    item.lines = 1;
  else if (line.take("wrap"))
    item.lines = line.count("the number of lines");
  else if (line.take("vertical"))
    item.vertical = true;
  else if (line.take("hidden"))
    item.hidden = true;
  else if (line.take("shown"))
    item.hidden = false;
  else if (line.take("ellipse"))
    item.shape = Shape::Ellipse;
  else if (line.take("circle"))
    item.shape = Shape::Circle;
  else if (line.take("check"))
    item.shape = Shape::Check;
  else if (line.take("pt"))
    item.pt = line.number("the type size in points");
  else if (line.take("rule"))
    item.rule = line.number("the width of the rule in mm");
  else
    return false;
  if (item.pt <= 0 || item.rule <= 0) line.fail(QStringLiteral("a size above zero"));
  return true;
}

ItemLine readItemLine(const QString& kind, PrpLine& line, Typeface face) {
  const KindRow& row = *findKind(kind);
  const QStringList names = readNames(line);
  Item item;
  item.kind = row.kind;
  item.align = row.align;
  item.hidden = row.hidden;
  item.face = face;
  item.file = line.file();
  item.sourceLine = line.line();
  if (row.kind == Kind::Line)
    item.rect = readLineEnds(line);
  else if (row.kind != Kind::Choice)
    item.rect = readRect(line);

  ItemLine result;
  QStringList texts;
  bool down = false;
  while (!line.empty()) {
    if (row.kind == Kind::Choice && line.nextIsText())
      readPlacements(line, item);
    else if (line.nextIsText())
      texts << line.text("a text");
    else if (line.take("down"))
      down = true;
    else if (line.take("before"))
      result.neighbour = line.word("the name of the next item");
    else if (line.take("after"))
      result.neighbour = line.word("the name of the item before"), result.before = false;
    else if (!readOption(line, item))
      line.fail(QStringLiteral("an option or a text in quotes"));
  }
  if (row.kind == Kind::Choice && item.placements.empty()) readPlacements(line, item);
  if (names.size() > 1 && (row.kind == Kind::Choice || row.kind == Kind::Line))
    line.fail(QStringLiteral("one name, not a family"));
  result.items = spread(item, names, down);
  setTexts(line, result.items, texts);
  return result;
}

}  // namespace report

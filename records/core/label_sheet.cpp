#include "records/core/label_sheet.h"

#include <QStringList>
#include <QTextBoundaryFinder>

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double kInnerWidth = label::kWidth - 2 * label::kMarginX;
constexpr double kInnerHeight = label::kHeight - 2 * label::kMarginY;
constexpr double kShrinkStep = 0.95;
constexpr double kMinScale = 0.2;  // fits three lines of 255 characters and a name of 255

/// A text of the label and the height of its characters.
struct Block {
  QString text;
  double size;
};

bool isBlank(const QString& text) { return text.trimmed().isEmpty(); }

std::vector<Block> blocksOf(const LabelAddress& address) {
  const QString mark = u"〒"_s;
  std::vector<Block> blocks;
  if (!isBlank(address.postcode))
    blocks.push_back(
        {address.postcode.startsWith(mark) ? address.postcode : mark + address.postcode, label::kTextSize});
  for (const QString& line : address.lines)
    if (!isBlank(line)) blocks.push_back({line, label::kTextSize});
  if (!isBlank(address.name)) blocks.push_back({address.name + u"  様"_s, label::kNameSize});
  return blocks;
}

/// Width of one character as the user sees it.
double characterWidth(QStringView character) {
  const char16_t first = character.front().unicode();
  if (first >= 0xFF61 && first <= 0xFF9F)
    return 0.5 * static_cast<double>(character.size());  // half-width kana
  if (first > 0x7E) return 1.0;
  return first >= u'A' && first <= u'Z' ? 0.9 : 0.65;  // Latin letters of the print font differ in width
}

template <class Take>
void eachCharacter(const QString& text, Take take) {
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  for (qsizetype from = 0, to = finder.toNextBoundary(); to > from; from = to, to = finder.toNextBoundary())
    take(QStringView(text).mid(from, to - from));
}

QStringList wrapped(const QString& text, double width) {
  QStringList lines{QString()};
  double used = 0;
  eachCharacter(text, [&](QStringView character) {
    const double wide = characterWidth(character);
    if (used + wide > width && !lines.last().isEmpty()) {
      lines += QString();
      used = 0;
    }
    lines.last() += character;
    used += wide;
  });
  return lines;
}

/// The lines at a part of the full sizes, from the upper left corner of the label's inside.
std::vector<LabelLine> set(const std::vector<Block>& blocks, double scale) {
  std::vector<LabelLine> lines;
  double y = 0;
  for (const Block& block : blocks) {
    const double size = block.size * scale;
    for (const QString& text : wrapped(block.text, kInnerWidth / size)) {
      lines.push_back({0, y, size, text});
      y += size * label::kLinePitch;
    }
  }
  return lines;
}

}  // namespace

double labelTextWidth(const QString& text) {
  double width = 0;
  eachCharacter(text, [&](QStringView character) { width += characterWidth(character); });
  return width;
}

int labelSheets(int labels) { return (labels + label::kPerSheet - 1) / label::kPerSheet; }

std::vector<LabelLine> labelLines(const LabelAddress& address, int place) {
  const std::vector<Block> blocks = blocksOf(address);
  double scale = 1;
  std::vector<LabelLine> lines = set(blocks, scale);
  while (!lines.empty() && lines.back().y + lines.back().size > kInnerHeight && scale > kMinScale)
    lines = set(blocks, scale *= kShrinkStep);
  const double x = label::kLeft + (place % label::kColumns) * label::kWidth + label::kMarginX;
  const double y = label::kTop + (place / label::kColumns) * label::kHeight + label::kMarginY;
  for (LabelLine& line : lines) {
    line.x += x;
    line.y += y;
  }
  return lines;
}

}  // namespace records

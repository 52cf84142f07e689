#include "platform/report/font_file.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <initializer_list>
#include <vector>

#include "platform/report/slim_outline.h"

namespace report {

namespace {

// Of the forms' fonts, in em.
constexpr double kAscent = 0.88, kDescent = -0.12;

void append16(QByteArray& bytes, int value) {
  bytes += char(value >> 8);
  bytes += char(value);
}
void append32(QByteArray& bytes, quint32 value) {
  append16(bytes, int(value >> 16));
  append16(bytes, int(value & 0xffff));
}
int get16(const QByteArray& bytes, qsizetype at) { return qFromBigEndian<qint16>(bytes.constData() + at); }

/// What all glyphs together need.
struct Extent {
  int left = 0, low = 0, right = 0, high = 0;
  int points = 0, contours = 0, advance = 0;

  void add(const SlimGlyph& glyph) {
    advance = std::max(advance, glyph.advance);
    if (glyph.outline.isEmpty()) return;
    const int count = get16(glyph.outline, 0);
    left = std::min(left, get16(glyph.outline, 2)), low = std::min(low, get16(glyph.outline, 4));
    right = std::max(right, get16(glyph.outline, 6)), high = std::max(high, get16(glyph.outline, 8));
    contours = std::max(contours, count);
    points = std::max(points, get16(glyph.outline, 10 + 2 * (count - 1)) + 1);
  }
};

QByteArray headTable(const Extent& extent, bool longPlaces) {
  QByteArray table;
  for (const quint32 value : {0x00010000u, 0x00010000u, 0u, 0x5F0F3CF5u}) append32(table, value);
  append16(table, 0);
  append16(table, kSlimEm);
  table.append(16, '\0');  // times of making and changing
  for (const int value : {extent.left, extent.low, extent.right, extent.high, 0, 6, 2, int(longPlaces), 0})
    append16(table, value);
  return table;
}

QByteArray hheaTable(const Extent& extent, int glyphs) {
  QByteArray table;
  append32(table, 0x00010000);
  for (const int value : {int(kAscent * kSlimEm), int(kDescent * kSlimEm), 0, extent.advance, extent.left, 0,
                          extent.right, 1, 0, 0, 0, 0, 0, 0, 0, glyphs})
    append16(table, value);
  return table;
}

QByteArray maxpTable(const Extent& extent, int glyphs) {
  QByteArray table;
  append32(table, 0x00010000);
  for (const int value : {glyphs, extent.points, extent.contours, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0})
    append16(table, value);
  return table;
}

quint32 checksum(const QByteArray& table) {
  quint32 sum = 0;
  for (qsizetype i = 0; i + 4 <= table.size(); i += 4) sum += qFromBigEndian<quint32>(table.constData() + i);
  return sum;
}

}  // namespace

QByteArray trueTypeFile(const Font& font, const std::set<unsigned>& numbers) {
  const int glyphs = numbers.empty() ? 1 : int(*numbers.rbegin()) + 1;
  QByteArray glyf, hmtx;
  std::vector<qsizetype> places;
  Extent extent;
  for (int number = 0; number < glyphs; ++number) {
    places.push_back(glyf.size());
    if (!numbers.contains(unsigned(number))) {
      append32(hmtx, 0);
      continue;
    }
    const SlimGlyph& glyph = font.glyph(unsigned(number));
    extent.add(glyph);
    glyf += glyph.outline;
    append16(hmtx, glyph.advance);
    append16(hmtx, glyph.outline.isEmpty() ? 0 : get16(glyph.outline, 2));
  }
  places.push_back(glyf.size());
  const bool longPlaces = glyf.size() > 2 * 65535;
  QByteArray loca;
  for (const qsizetype place : places)
    longPlaces ? append32(loca, quint32(place)) : append16(loca, int(place / 2));

  struct Table {
    const char* tag;
    QByteArray bytes;
  };
  std::array tables{Table{"glyf", glyf},
                    Table{"head", headTable(extent, longPlaces)},
                    Table{"hhea", hheaTable(extent, glyphs)},
                    Table{"hmtx", hmtx},
                    Table{"loca", loca},
                    Table{"maxp", maxpTable(extent, glyphs)}};
  QByteArray file;
  append32(file, 0x00010000);
  for (const int value : {int(tables.size()), 64, 2, 32}) append16(file, value);
  quint32 place = quint32(12 + 16 * tables.size());
  for (Table& table : tables) {
    const quint32 length = quint32(table.bytes.size());
    table.bytes.append((4 - table.bytes.size() % 4) % 4, '\0');
    file += table.tag;
    for (const quint32 value : {checksum(table.bytes), place, length}) append32(file, value);
    place += quint32(table.bytes.size());
  }
  for (const Table& table : tables) file += table.bytes;
  return file;
}

}  // namespace report

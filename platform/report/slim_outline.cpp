#include "platform/report/slim_outline.h"

#include <algorithm>
#include <cmath>
#include <vector>
#include FT_OUTLINE_H

namespace report {

namespace {

struct Point {
  int x = 0;
  int y = 0;
  bool on = false;
};
using Contour = std::vector<Point>;

// TrueType flags of a point
constexpr int kOn = 1, kShortX = 2, kShortY = 4, kRepeat = 8, kSameX = 16, kSameY = 32;

constexpr double kFlat = 0.7;  // a curve that leaves its chord by less, in units, is drawn straight

double distance(const Point& a, const Point& m, const Point& z) {
  const double length = std::hypot(z.x - a.x, z.y - a.y);
  if (length == 0) return 0;
  return std::abs(double(m.x - a.x) * (z.y - a.y) - double(m.y - a.y) * (z.x - a.x)) / length;
}

/// Whether the outline stays the same (within the grid) without m.
bool idle(const Point& a, const Point& m, const Point& z) {
  if (a.x == m.x && a.y == m.y && (a.on == m.on || !m.on)) return true;
  if (m.on && a.on && z.on) return distance(a, m, z) == 0;
  if (m.on && !a.on && !z.on)  // the middle of two control points is implied
    return std::abs(2 * m.x - a.x - z.x) <= 1 && std::abs(2 * m.y - a.y - z.y) <= 1;
  return !m.on && a.on && z.on && distance(a, m, z) < kFlat;
}

void thin(Contour& contour) {
  for (size_t i = 0, kept = 0; kept < contour.size() && contour.size() > 2; ++kept) {
    const size_t n = contour.size();
    if (idle(contour[(i + n - 1) % n], contour[i], contour[(i + 1) % n])) {
      contour.erase(contour.begin() + long(i));
      i = i % contour.size();
      kept = 0;
    } else {
      i = (i + 1) % n;
    }
  }
}

/// Takes an outline apart; cubic curves become two quadratic ones each.
struct Reader {
  int unitsPerEm;
  std::vector<Contour> contours;
  FT_Vector last{0, 0};

  void add(FT_Pos x, FT_Pos y, bool on) {
    const auto scale = [&](FT_Pos v) { return int(std::lround(double(v) * kSlimEm / unitsPerEm)); };
    contours.back().push_back({scale(x), scale(y), on});
  }
  static Reader& of(void* user) { return *static_cast<Reader*>(user); }

  static int move(const FT_Vector* to, void* user) {
    of(user).contours.emplace_back();
    return line(to, user);
  }
  static int line(const FT_Vector* to, void* user) {
    of(user).add(to->x, to->y, true);
    of(user).last = *to;
    return 0;
  }
  static int conic(const FT_Vector* control, const FT_Vector* to, void* user) {
    of(user).add(control->x, control->y, false);
    return line(to, user);
  }
  static int cubic(const FT_Vector* a, const FT_Vector* b, const FT_Vector* to, void* user) {
    Reader& self = of(user);
    const FT_Vector from = self.last;
    self.add((from.x + 3 * a->x) / 4, (from.y + 3 * a->y) / 4, false);
    self.add((from.x + 3 * a->x + 3 * b->x + to->x) / 8, (from.y + 3 * a->y + 3 * b->y + to->y) / 8, true);
    self.add((to->x + 3 * b->x) / 4, (to->y + 3 * b->y) / 4, false);
    return line(to, user);
  }
};

std::vector<Contour> readContours(FT_Outline& outline, int unitsPerEm) {
  static constexpr FT_Outline_Funcs functions{Reader::move, Reader::line, Reader::conic, Reader::cubic, 0, 0};
  Reader reader{unitsPerEm, {}, {0, 0}};
  FT_Outline_Decompose(&outline, &functions, &reader);
  for (Contour& contour : reader.contours) thin(contour);
  std::erase_if(reader.contours, [](const Contour& contour) { return contour.size() < 3; });
  return std::move(reader.contours);
}

void append16(QByteArray& bytes, int value) {
  bytes += char(value >> 8);
  bytes += char(value);
}

void appendDelta(QByteArray& bytes, int& flags, int delta, int shortFlag, int sameFlag) {
  if (delta == 0) {
    flags |= sameFlag;
  } else if (std::abs(delta) < 256) {
    flags |= shortFlag | (delta > 0 ? sameFlag : 0);
    bytes += char(std::abs(delta));
  } else {
    append16(bytes, delta);
  }
}

QByteArray packFlags(const std::vector<int>& flags) {
  QByteArray packed;
  for (size_t i = 0; i < flags.size();) {
    size_t run = 1;
    while (i + run < flags.size() && flags[i + run] == flags[i] && run < 256) ++run;
    if (run > 2) {
      packed += char(flags[i] | kRepeat);
      packed += char(run - 1);
    } else {
      packed.append(qsizetype(run), char(flags[i]));
    }
    i += run;
  }
  return packed;
}

void appendBounds(QByteArray& glyph, const std::vector<Contour>& contours) {
  int left = 32767, low = 32767, right = -32768, high = -32768;
  for (const Contour& contour : contours)
    for (const Point& p : contour) {
      left = std::min(left, p.x), right = std::max(right, p.x);
      low = std::min(low, p.y), high = std::max(high, p.y);
    }
  for (const int bound : {left, low, right, high}) append16(glyph, bound);
}

}  // namespace

QByteArray slimOutline(FT_Outline& outline, int unitsPerEm) {
  const std::vector<Contour> contours = readContours(outline, unitsPerEm);
  if (contours.empty()) return {};
  QByteArray glyph, xs, ys;
  append16(glyph, int(contours.size()));
  appendBounds(glyph, contours);
  int last = -1;
  std::vector<int> flags;
  Point pen;
  for (const Contour& contour : contours) {
    append16(glyph, last += int(contour.size()));
    for (const Point& p : contour) {
      int flag = p.on ? kOn : 0;
      appendDelta(xs, flag, p.x - pen.x, kShortX, kSameX);
      appendDelta(ys, flag, p.y - pen.y, kShortY, kSameY);
      flags.push_back(flag);
      pen = p;
    }
  }
  append16(glyph, 0);  // no instructions
  glyph += packFlags(flags) + xs + ys;
  if (glyph.size() % 2) glyph += '\0';
  return glyph;
}

}  // namespace report

#include "platform/report/text_fitter.h"

#include <algorithm>
#include <cmath>

namespace report {

namespace {

constexpr double kFloorPt = 2.5;    // smaller type cannot be read on paper
constexpr double kLeading = 1.15;   // distance of baselines, in em, where there is room
constexpr double kBaseline = 0.38;  // of the baseline below the middle of the line, in em
constexpr double kShrinkStep = 0.96;

/// Characters that do not open a line.
bool clings(char32_t c) {
  constexpr QStringView letters = u"、。，．・）」』】〕ー～々ゃゅょっャュョッ,.)";
  return c < 0x10000 && letters.contains(QChar(char16_t(c)));
}

/// Control characters have no form: a tab, or a line end that has no place, is a blank.
QString printable(QString text, bool lineEnds) {
  text.remove(u'\r');
  for (QChar& c : text)
    if (c < u' ' && !(c == u'\n' && lineEnds)) c = u' ';
  return text;
}

class Fitter {
 public:
  Fitter(TextShaper& shaper, const Item& item, Align align)
      : m_shaper(shaper),
        m_item(item),
        m_align(align),
        m_width(item.rect.w * kPointsPerMm),
        m_height(item.rect.h * kPointsPerMm) {}

  std::vector<PlacedLine> fit(const QString& text) {
    if (text.isEmpty()) return {};
    return m_item.vertical ? fitVertical(text) : fitHorizontal(text);
  }

 private:
  std::vector<PlacedLine> fitVertical(const QString& raw) {
    const QString text = printable(raw, false);
    ShapedTextPtr line = m_shaper.shape(m_item.face, text, true);
    double pt = std::min(m_item.pt, m_width);
    if (line->length * pt > m_height) pt = std::max(std::min(kFloorPt, pt), m_height / line->length);
    if (line->length * pt > m_height * 1.001) {
      line = m_shaper.shapeCut(m_item.face, text, qsizetype(m_height / pt), true);
    }
    const double spare = std::max(0.0, m_height - line->length * pt);
    const double top = m_align == Align::Left ? 0 : m_align == Align::Right ? spare : spare / 2;
    return {{line, left() + m_width / 2, upper() + top, pt}};
  }

  std::vector<PlacedLine> fitHorizontal(const QString& raw) {
    const QString text = printable(raw, m_item.lines > 1);
    const double floor = std::min(kFloorPt, m_item.pt);
    const double roof = m_height / m_item.lines;
    double pt = std::min(m_item.pt, std::max(floor, roof));
    if (m_item.lines == 1) {
      const double length = m_shaper.shape(m_item.face, text)->length;
      if (length * pt > m_width) pt = std::max(floor, m_width / length * 0.9999);
      return place({text}, pt);
    }
    QStringList lines = wrap(text, pt);
    while (lines.size() > m_item.lines && pt > floor) {
      pt = std::max(floor, pt * kShrinkStep);
      lines = wrap(text, pt);
    }
    if (lines.size() > m_item.lines) {
      const QString rest = lines.mid(m_item.lines - 1).join(QString());
      lines = lines.mid(0, m_item.lines - 1) << rest;
    }
    return place(lines, pt);
  }

  QStringList wrap(const QString& text, double pt) {
    QStringList lines;
    const double width = m_width / pt + 1e-6;
    std::u32string line;
    double length = 0;
    const auto end = [&] { lines << QString::fromStdU32String(line); };
    for (const char32_t c : text.toStdU32String()) {
      if (c == U'\n') {
        end();
        line.clear();
        length = 0;
        continue;
      }
      const double advance = m_shaper.advance(m_item.face, c);
      if (length + advance > width && !line.empty()) {
        std::u32string carried;
        if (clings(c) && line.size() > 1) {
          carried = line.back();
          line.pop_back();
        }
        end();
        line = carried;
        length = carried.empty() ? 0 : m_shaper.advance(m_item.face, carried[0]);
      }
      line += c;
      length += advance;
    }
    end();
    return lines;
  }

  std::vector<PlacedLine> place(const QStringList& lines, double pt) {
    std::vector<PlacedLine> placed;
    const double step = lines.size() == 1 ? pt : std::min(pt * kLeading, m_height / double(lines.size()));
    double middle = upper() + m_height / 2 - step * double(lines.size() - 1) / 2;
    // Notes start at the top of their box and go on downwards; a short line is centred.
    if (m_item.lines > 2) middle = upper() + step / 2;
    for (const QString& line : lines) {
      ShapedTextPtr shaped = m_shaper.shape(m_item.face, line);
      if (shaped->length * pt > m_width * 1.001 + 0.01)
        shaped = m_shaper.shapeCut(m_item.face, line, shownIn(line, pt), false);
      const double spare = m_width - shaped->length * pt;
      const double x = m_align == Align::Left ? 0 : m_align == Align::Right ? spare : spare / 2;
      if (!line.isEmpty()) placed.push_back({shaped, left() + x, middle + kBaseline * pt, pt});
      middle += step;
    }
    return placed;
  }

  qsizetype shownIn(const QString& line, double pt) {
    qsizetype shown = 0;
    double length = 0;
    for (const char32_t c : line.toStdU32String()) {
      length += m_shaper.advance(m_item.face, c);
      if (length * pt > m_width) break;
      ++shown;
    }
    return shown;
  }

  double left() const { return m_item.rect.x * kPointsPerMm; }
  double upper() const { return m_item.rect.y * kPointsPerMm; }

  TextShaper& m_shaper;
  const Item& m_item;
  Align m_align;
  double m_width;
  double m_height;
};

}  // namespace

std::vector<PlacedLine> fitText(TextShaper& shaper, const Item& item, const QString& text, Align align) {
  return Fitter(shaper, item, align).fit(text);
}

}  // namespace report

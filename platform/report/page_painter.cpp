#include "platform/report/page_painter.h"

#include <algorithm>
#include <map>
#include <set>

namespace report {

namespace {

void paintMark(Canvas& canvas, const Rect& rect, Shape shape, double rule) {
  const double x = rect.x * kPointsPerMm, y = rect.y * kPointsPerMm;
  const double w = rect.w * kPointsPerMm, h = rect.h * kPointsPerMm;
  const double circle = std::min(w, h) / 2;
  if (shape == Shape::Check) {
    canvas.moveTo(x + w * 0.15, y + h * 0.5);
    canvas.lineTo(x + w * 0.42, y + h * 0.85);
    canvas.lineTo(x + w * 0.9, y + h * 0.1);
  } else if (shape == Shape::Circle) {
    canvas.ellipse(x + w / 2, y + h / 2, circle, circle);
  } else {
    canvas.ellipse(x + w / 2, y + h / 2, w / 2, h / 2);
  }
  canvas.stroke(rule * kPointsPerMm);
}

}  // namespace

void PagePainter::paint(Canvas& canvas, const Item& item, const ItemState& state) {
  if (!state.shown) return;
  switch (item.kind) {
    case Kind::Label:
    case Kind::Text:
    case Kind::Digit:
      return paintText(canvas, item, state);
    case Kind::Box:
    case Kind::Line:
      return;
    case Kind::Mark:
      return paintMark(canvas, item.rect, item.shape, item.rule);
    case Kind::Choice:
      return paintChoice(canvas, item, state.text);
    case Kind::Picture:
      return paintPicture(canvas, item, state.text);
  }
}

void PagePainter::registerCaptionGlyphs(const Form& form) {
  std::map<Typeface, std::set<char32_t>> characters;
  for (const Item& item : form.items)
    if (item.kind == Kind::Label && !item.hidden)
      for (const char32_t c : item.text.toStdU32String()) characters[item.face].insert(c);
  for (const auto& [face, set] : characters)
    for (const char32_t c : set) m_shaper.advance(face, c);
}

void PagePainter::paintText(Canvas& canvas, const Item& item, const ItemState& state) {
  for (const PlacedLine& line : fitText(m_shaper, item, state.text, state.align))
    for (const Run& run : line.text->runs) canvas.text(run, line.x, line.y, line.pt);
}

// The text chooses the place: the whole text but for blanks at its ends. Another text draws nothing.
void PagePainter::paintChoice(Canvas& canvas, const Item& item, const QString& text) {
  const QString word = text.trimmed();
  for (const Placement& placement : item.placements)
    if (placement.words.contains(word)) return paintMark(canvas, placement.rect, item.shape, item.rule);
}

void PagePainter::paintPicture(Canvas& canvas, const Item& item, const QString& text) {
  cairo_surface_t* picture = m_pictures.find(text);
  if (!picture) return;
  const double w = item.rect.w * kPointsPerMm, h = item.rect.h * kPointsPerMm;
  const double pw = cairo_image_surface_get_width(picture), ph = cairo_image_surface_get_height(picture);
  const double scale = std::min(w / pw, h / ph);
  canvas.picture(picture, item.rect.x * kPointsPerMm + (w - pw * scale) / 2,
                 item.rect.y * kPointsPerMm + (h - ph * scale) / 2, pw * scale, ph * scale);
}

}  // namespace report

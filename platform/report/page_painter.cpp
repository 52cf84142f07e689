#include "platform/report/page_painter.h"

#include <cmath>
#include <numbers>

namespace report {

namespace {

void stroke(cairo_t* page, double ruleMm) {
  cairo_set_line_width(page, ruleMm * kPointsPerMm);
  cairo_stroke(page);
}

void addEllipse(cairo_t* page, double cx, double cy, double rx, double ry) {
  cairo_save(page);
  cairo_translate(page, cx, cy);
  cairo_scale(page, rx, ry);
  cairo_new_sub_path(page);
  cairo_arc(page, 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_close_path(page);
  cairo_restore(page);
}

void paintMark(cairo_t* page, const Rect& rect, Shape shape, double rule) {
  const double x = rect.x * kPointsPerMm, y = rect.y * kPointsPerMm;
  const double w = rect.w * kPointsPerMm, h = rect.h * kPointsPerMm;
  const double circle = std::min(w, h) / 2;
  if (shape == Shape::Check) {
    cairo_move_to(page, x + w * 0.15, y + h * 0.5);
    cairo_line_to(page, x + w * 0.42, y + h * 0.85);
    cairo_line_to(page, x + w * 0.9, y + h * 0.1);
  } else if (shape == Shape::Circle) {
    addEllipse(page, x + w / 2, y + h / 2, circle, circle);
  } else {
    addEllipse(page, x + w / 2, y + h / 2, w / 2, h / 2);
  }
  stroke(page, rule);
}

void setFont(cairo_t* page, Font* font, double pt) {
  cairo_matrix_t matrix;
  cairo_get_matrix(page, &matrix);
  if (matrix.xx == 1 && matrix.yy == 1 && matrix.xy == 0 && matrix.yx == 0) {
    cairo_set_scaled_font(page, font->scaled(pt));
  } else {
    cairo_set_font_face(page, font->face());
    cairo_set_font_size(page, pt);
  }
}

}  // namespace

void PagePainter::paint(cairo_t* page, const Item& item, const ItemState& state) {
  if (!state.shown) return;
  switch (item.kind) {
    case Kind::Label:
    case Kind::Text:
    case Kind::Digit: return paintText(page, item, state);
    case Kind::Box:
    case Kind::Line: return;  // see RuleMerger
    case Kind::Mark: return paintMark(page, item.rect, item.shape, item.rule);
    case Kind::Choice: return paintChoice(page, item, state.text);
    case Kind::Picture: return paintPicture(page, item, state.text);
  }
}

void PagePainter::paintText(cairo_t* page, const Item& item, const ItemState& state) {
  for (const PlacedLine& line : fitText(m_shaper, item, state.text, state.align))
    paintLine(page, *line.text, line.x, line.y, line.pt);
}

void PagePainter::paintLine(cairo_t* page, const ShapedText& text, double x, double y, double pt) {
  // Short numbers make small files: a tenth of a point is less than a printer's dot.
  const double left = std::round(x * 10) / 10, base = std::round(y * 10) / 10;
  for (const Run& run : text.runs) {
    m_glyphs.resize(run.glyphs.size());
    for (size_t i = 0; i < run.glyphs.size(); ++i)
      m_glyphs[i] = {run.glyphs[i].index, left + run.glyphs[i].x * pt, base + run.glyphs[i].y * pt};
    setFont(page, run.font, pt);
    cairo_show_text_glyphs(page, run.utf8.constData(), int(run.utf8.size()), m_glyphs.data(), int(m_glyphs.size()),
                           run.clusters.data(), int(run.clusters.size()), cairo_text_cluster_flags_t(0));
  }
}

// The text chooses the place: the whole text but for blanks at its ends. Another text draws nothing.
void PagePainter::paintChoice(cairo_t* page, const Item& item, const QString& text) {
  const QString word = text.trimmed();
  for (const Placement& placement : item.placements)
    if (placement.words.contains(word)) return paintMark(page, placement.rect, item.shape, item.rule);
}

void PagePainter::paintPicture(cairo_t* page, const Item& item, const QString& text) {
  cairo_surface_t* picture = m_pictures.find(text);
  if (!picture) return;
  const double w = item.rect.w * kPointsPerMm, h = item.rect.h * kPointsPerMm;
  const double pw = cairo_image_surface_get_width(picture), ph = cairo_image_surface_get_height(picture);
  const double scale = std::min(w / pw, h / ph);
  cairo_save(page);
  cairo_translate(page, item.rect.x * kPointsPerMm + (w - pw * scale) / 2,
                  item.rect.y * kPointsPerMm + (h - ph * scale) / 2);
  cairo_scale(page, scale, scale);
  cairo_set_source_surface(page, picture, 0, 0);
  cairo_paint(page);
  cairo_restore(page);
}

}  // namespace report

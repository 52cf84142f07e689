#include "platform/report/cairo_canvas.h"

#include <cmath>
#include <numbers>

namespace report {

CairoCanvas::CairoCanvas(double width, double height, double dpi) {
  const auto pixels = [&](double mm) { return int(std::ceil(mm / 25.4 * dpi)); };
  m_image.reset(cairo_image_surface_create(CAIRO_FORMAT_RGB24, pixels(width), pixels(height)));
  m_page.reset(cairo_create(m_image.get()));
  cairo_set_source_rgb(m_page.get(), 1, 1, 1);
  cairo_paint(m_page.get());
  cairo_set_source_rgb(m_page.get(), 0, 0, 0);
  cairo_scale(m_page.get(), dpi / 72, dpi / 72);
  FontOptions options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  cairo_set_font_options(m_page.get(), options.get());
}

void CairoCanvas::text(const Run& run, double x, double y, double pt) {
  m_glyphs.clear();
  for (const PlacedGlyph& glyph : run.glyphs)
    m_glyphs.push_back({run.font->glyph(glyph.number).original, x + glyph.x * pt, y + glyph.y * pt});
  cairo_set_font_face(m_page.get(), run.font->face());
  cairo_set_font_size(m_page.get(), pt);
  cairo_show_glyphs(m_page.get(), m_glyphs.data(), int(m_glyphs.size()));
}

void CairoCanvas::ellipse(double cx, double cy, double rx, double ry) {
  cairo_save(m_page.get());
  cairo_translate(m_page.get(), cx, cy);
  cairo_scale(m_page.get(), rx, ry);
  cairo_new_sub_path(m_page.get());
  cairo_arc(m_page.get(), 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_close_path(m_page.get());
  cairo_restore(m_page.get());
}

void CairoCanvas::stroke(double width) {
  cairo_set_line_width(m_page.get(), width);
  cairo_stroke(m_page.get());
}

void CairoCanvas::picture(cairo_surface_t* image, double x, double y, double w, double h) {
  cairo_save(m_page.get());
  cairo_translate(m_page.get(), x, y);
  cairo_scale(m_page.get(), w / cairo_image_surface_get_width(image),
              h / cairo_image_surface_get_height(image));
  cairo_set_source_surface(m_page.get(), image, 0, 0);
  cairo_paint(m_page.get());
  cairo_restore(m_page.get());
}

}  // namespace report

#pragma once

#include "platform/report/canvas.h"

namespace report {

/// Pages as images, for previews and tests.
class CairoCanvas final : public Canvas {
 public:
  /// White paper of this size in mm.
  CairoCanvas(double width, double height, double dpi);

  void text(const Run& run, double x, double y, double pt) override;
  void moveTo(double x, double y) override { cairo_move_to(m_page.get(), x, y); }
  void lineTo(double x, double y) override { cairo_line_to(m_page.get(), x, y); }
  void ellipse(double cx, double cy, double rx, double ry) override;
  void stroke(double width) override;
  void picture(cairo_surface_t* image, double x, double y, double w, double h) override;
  void openParagraph(int) override {}
  void closeParagraph() override {}

  cairo_surface_t* image() const { return m_image.get(); }
  cairo_t* context() const { return m_page.get(); }

 private:
  Surface m_image;
  Context m_page;
  std::vector<cairo_glyph_t> m_glyphs;
};

}  // namespace report

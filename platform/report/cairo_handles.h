#pragma once

#include <cairo.h>

#include <memory>

namespace report {

struct CairoRelease {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_font_face_t* face) const { cairo_font_face_destroy(face); }
  void operator()(cairo_scaled_font_t* font) const { cairo_scaled_font_destroy(font); }
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};

using Surface = std::unique_ptr<cairo_surface_t, CairoRelease>;
using Context = std::unique_ptr<cairo_t, CairoRelease>;
using FontFace = std::unique_ptr<cairo_font_face_t, CairoRelease>;
using ScaledFont = std::unique_ptr<cairo_scaled_font_t, CairoRelease>;
using FontOptions = std::unique_ptr<cairo_font_options_t, CairoRelease>;

inline constexpr double kPointsPerMm = 72.0 / 25.4;
inline constexpr double kMmPerPoint = 25.4 / 72.0;

}  // namespace report

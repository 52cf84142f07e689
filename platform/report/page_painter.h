#pragma once

#include "platform/report/picture_store.h"
#include "platform/report/text_fitter.h"

namespace report {

/// What the program made of an item since the template was loaded.
struct ItemState {
  bool shown = false;
  Align align = Align::Left;
  QString text;

  bool operator==(const ItemState&) const = default;
};

/// Draws items on a page measured in points.
class PagePainter {
 public:
  PagePainter(TextShaper& shaper, PictureStore& pictures) : m_shaper(shaper), m_pictures(pictures) {}

  /// Does nothing for an item that is not shown.
  void paint(cairo_t* page, const Item& item, const ItemState& state);
  void paintLine(cairo_t* page, const ShapedText& text, double x, double y, double pt);

 private:
  void paintText(cairo_t* page, const Item& item, const ItemState& state);
  void paintChoice(cairo_t* page, const Item& item, const QString& text);
  void paintPicture(cairo_t* page, const Item& item, const QString& text);

  TextShaper& m_shaper;
  PictureStore& m_pictures;
  std::vector<cairo_glyph_t> m_glyphs;
};

}  // namespace report

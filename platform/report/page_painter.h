#pragma once

#include "platform/report/canvas.h"
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

/// Draws items on a canvas. Boxes and lines are not drawn one by one: see RuleMerger.
class PagePainter {
 public:
  PagePainter(TextShaper& shaper, PictureStore& pictures) : m_shaper(shaper), m_pictures(pictures) {}

  /// Does nothing for an item that is not shown.
  void paint(Canvas& canvas, const Item& item, const ItemState& state);
  /// Numbers the glyphs of a form's captions in the order of the characters: kanji with the same parts come
  /// to stand together, and the font compresses better.
  void registerCaptionGlyphs(const Form& form);

 private:
  void paintText(Canvas& canvas, const Item& item, const ItemState& state);
  void paintChoice(Canvas& canvas, const Item& item, const QString& text);
  void paintPicture(Canvas& canvas, const Item& item, const QString& text);

  TextShaper& m_shaper;
  PictureStore& m_pictures;
};

}  // namespace report

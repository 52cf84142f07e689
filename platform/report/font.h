#pragma once

#include "platform/report/cairo_handles.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <ft2build.h>
#include FT_FREETYPE_H

struct hb_font_t;

namespace report {

using FontLibrary = std::shared_ptr<FT_LibraryRec_>;

/// One font file, opened twice: once as it is, for looking up glyphs, and once without its character
/// table, for the page writer. The table gives a shared glyph back as the lowest of its codes, so that
/// a kanji would be read from the PDF as the radical that looks like it. Without the table the writer
/// keeps the text that is handed to it with each glyph.
class Font {
 public:
  /// nullptr if the file is no font that can be read.
  static std::unique_ptr<Font> open(const FontLibrary& library, const QString& path, int faceNumber);
  ~Font();
  Font(const Font&) = delete;
  Font& operator=(const Font&) = delete;

  /// 0 if the font lacks the character.
  unsigned glyph(char32_t character);
  /// Advance in em.
  double advance(unsigned glyph);
  cairo_font_face_t* face() const { return m_face.get(); }
  /// The font in a size given in points, for an untransformed page.
  cairo_scaled_font_t* scaled(double pt);
  /// For the few texts that need shaping (vertical forms, combining marks). One em is shaperEm() units.
  hb_font_t* shaper();
  double shaperEm() const { return 64.0 * m_lookup->units_per_EM; }

 private:
  explicit Font(const FontLibrary& library) : m_library(library) {}

  FontLibrary m_library;
  FT_Face m_lookup = nullptr;
  FontFace m_face;
  hb_font_t* m_shaper = nullptr;
  QHash<char32_t, unsigned> m_glyphs;
  QHash<unsigned, double> m_advances;
  QHash<int, cairo_scaled_font_t*> m_scaled;
};

}  // namespace report

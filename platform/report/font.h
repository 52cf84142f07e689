#pragma once

#include "platform/report/cairo_handles.h"
#include "platform/report/slim_font.h"

#include <QHash>
#include <QString>

struct hb_font_t;

namespace report {

/// One font file, opened twice: once as it is, for looking up glyphs, and once as the slim font that the
/// page writer embeds. The slim font has no character table: with one the writer gives a shared glyph back
/// as the lowest of its codes, so that a kanji would be read from the PDF as the radical that looks like
/// it. Without it the writer keeps the text that is handed to it with each glyph.
///
/// Glyph numbers are those of the font that the page writer uses.
class Font {
 public:
  /// nullptr if the file is no font that can be read.
  static std::unique_ptr<Font> open(const FontLibrary& library, const QString& path, int faceNumber);
  ~Font();
  Font(const Font&) = delete;
  Font& operator=(const Font&) = delete;

  bool has(char32_t character) { return lookup(character) != 0; }
  /// The empty box if the font lacks the character.
  unsigned glyph(char32_t character) { return written(lookup(character)); }
  /// The page writer's number for a glyph that the shaper named.
  unsigned written(unsigned original) { return m_slim ? m_slim->glyph(original) : original; }
  /// Advance in em.
  double advance(unsigned glyph);
  cairo_font_face_t* face() const { return m_face.get(); }
  /// The font in a size given in points, for an untransformed page.
  cairo_scaled_font_t* scaled(double pt);
  /// For the few texts that need shaping (vertical forms, combining marks). One em is shaperEm() units.
  hb_font_t* shaper();
  double shaperEm() const { return 64.0 * m_original->units_per_EM; }

 private:
  explicit Font(const FontLibrary& library) : m_library(library) {}
  unsigned lookup(char32_t character);

  FontLibrary m_library;
  std::shared_ptr<FT_FaceRec_> m_original;
  std::shared_ptr<SlimFont> m_slim;
  FontFace m_face;
  hb_font_t* m_shaper = nullptr;
  QHash<char32_t, unsigned> m_glyphs;
  QHash<int, cairo_scaled_font_t*> m_scaled;
};

}  // namespace report

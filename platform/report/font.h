#pragma once

#include <ft2build.h>

#include <QHash>
#include <QString>
#include <vector>

#include "platform/report/cairo_handles.h"
#include FT_FREETYPE_H

struct hb_font_t;

namespace report {

using FontLibrary = std::shared_ptr<FT_LibraryRec_>;

/// A glyph as documents embed it.
struct SlimGlyph {
  unsigned original = 0;  ///< its number in the font file
  QString text;           ///< the characters that the glyph draws
  int advance = 0;        ///< in units of kSlimEm
  QByteArray outline;     ///< see slimOutline
};

/// One font file. Glyphs get numbers of our own, one for each character that was ever set: the fonts of the
/// forms draw a kanji and the radical that looks like it with one and the same glyph, and only with two
/// numbers for it does the text of a document come back as it was typed.
class Font {
 public:
  /// nullptr if the file is no readable font. The id is unique among the fonts of a run.
  static std::unique_ptr<Font> open(const FontLibrary& library, const QString& path, int faceNumber, int id);
  ~Font();
  Font(const Font&) = delete;
  Font& operator=(const Font&) = delete;

  int id() const { return m_id; }
  QByteArray name() const;
  bool has(char32_t character);
  /// Our number for the character; the font's empty box if it lacks it.
  unsigned number(char32_t character);
  /// Our number for a glyph of the file that the shaper chose for this text.
  unsigned number(unsigned original, const QString& text);
  const SlimGlyph& glyph(unsigned number) const { return m_glyphs[number]; }
  /// Of the glyph with our number, in em.
  double advance(unsigned number) const;

  /// For drawing on images; it takes the original glyph numbers.
  cairo_font_face_t* face() const { return m_face.get(); }
  /// For the few texts that need shaping (vertical forms, combining marks). One em is shaperEm() units.
  hb_font_t* shaper();
  double shaperEm() const { return 64.0 * m_file->units_per_EM; }

 private:
  Font(const FontLibrary& library, int id) : m_library(library), m_id(id) {}
  unsigned add(unsigned original, const QString& text);

  FontLibrary m_library;
  int m_id;
  std::shared_ptr<FT_FaceRec_> m_file;
  FontFace m_face;
  hb_font_t* m_shaper = nullptr;
  std::vector<SlimGlyph> m_glyphs;
  QHash<char32_t, unsigned> m_byCharacter;
  QHash<QString, unsigned> m_shaped;
};

}  // namespace report

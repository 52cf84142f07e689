#pragma once

#include <QByteArray>
#include <QHash>
#include <ft2build.h>
#include <memory>
#include FT_FREETYPE_H

namespace report {

using FontLibrary = std::shared_ptr<FT_LibraryRec_>;

/// A TrueType font in memory that grows glyph by glyph, made for being embedded in documents. It holds
/// outlines only: no hints for screens, which are nearly half of the Japanese print fonts, and outlines on
/// a grid that is still several times finer than a printer's dots. A claim in a file of its own is so a
/// third of the size. It also has no character table: see Font.
class SlimFont {
 public:
  /// nullptr if the font has no TrueType outlines.
  static std::shared_ptr<SlimFont> open(const FontLibrary& library, FT_Face original);
  ~SlimFont();
  SlimFont(const SlimFont&) = delete;
  SlimFont& operator=(const SlimFont&) = delete;

  /// This font's number for a glyph of the original, which is taken over at the first request.
  unsigned glyph(unsigned original);
  /// Of the glyph with this font's number, in em.
  double advance(unsigned glyph) const;
  FT_Face face() const { return m_face; }

 private:
  SlimFont(const FontLibrary& library, FT_Face original) : m_library(library), m_original(original) {}
  void lay();

  FontLibrary m_library;
  FT_Face m_original;
  FT_Face m_face = nullptr;
  QByteArray m_file;
  qsizetype m_metrics = 0;    // places of the tables in m_file
  qsizetype m_locations = 0;
  qsizetype m_outlines = 0;
  quint32 m_used = 0;         // bytes of outlines
  unsigned m_count = 0;
  QHash<unsigned, unsigned> m_glyphs;
};

}  // namespace report

#include "platform/report/font.h"

#include <cairo-ft.h>
#include <hb-ft.h>

#include <QFile>
#include <cmath>

#include "platform/report/slim_outline.h"

namespace report {

namespace {

constexpr size_t kMaxGlyphs = 65000;  // documents number glyphs in two bytes

/// The drawing library keeps fonts for a while after we let them go: the file goes with them.
FontFace faceOf(const std::shared_ptr<FT_FaceRec_>& file) {
  using Kept = std::shared_ptr<FT_FaceRec_>;
  FontFace face(cairo_ft_font_face_create_for_ft_face(file.get(), FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP));
  static const cairo_user_data_key_t key = {};
  auto kept = std::make_unique<Kept>(file);
  const auto release = [](void* data) { delete static_cast<Kept*>(data); };
  if (cairo_font_face_set_user_data(face.get(), &key, kept.get(), release) != CAIRO_STATUS_SUCCESS)
    return nullptr;
  kept.release();
  return face;
}

}  // namespace

std::unique_ptr<Font> Font::open(const FontLibrary& library, const QString& path, int faceNumber, int id) {
  std::unique_ptr<Font> font(new Font(library, id));
  FT_Face face = nullptr;
  if (FT_New_Face(library.get(), QFile::encodeName(path).constData(), faceNumber, &face) != 0) return nullptr;
  font->m_file = std::shared_ptr<FT_FaceRec_>(face, [library](FT_Face f) { FT_Done_Face(f); });
  if (!FT_IS_SCALABLE(face)) return nullptr;
  FT_Select_Charmap(face, FT_ENCODING_UNICODE);
  font->m_face = faceOf(font->m_file);
  font->add(0, QString());
  return font->m_face ? std::move(font) : nullptr;
}

Font::~Font() {
  if (m_shaper) hb_font_destroy(m_shaper);
}

QByteArray Font::name() const {
  const QByteArray name = FT_Get_Postscript_Name(m_file.get());
  return name.isEmpty() ? QByteArray("Font") : name;
}

bool Font::has(char32_t character) { return m_glyphs[number(character)].original != 0; }

unsigned Font::number(char32_t character) {
  const auto known = m_byCharacter.constFind(character);
  if (known != m_byCharacter.constEnd()) return *known;
  const unsigned added = add(FT_Get_Char_Index(m_file.get(), character), QString::fromUcs4(&character, 1));
  m_byCharacter.insert(character, added);
  return added;
}

unsigned Font::number(unsigned original, const QString& text) {
  const QString key = QString::number(original) + u' ' + text;
  const auto known = m_shaped.constFind(key);
  if (known != m_shaped.constEnd()) return *known;
  return m_shaped[key] = add(original, text);
}

unsigned Font::add(unsigned original, const QString& text) {
  if (m_glyphs.size() > kMaxGlyphs) return 0;
  SlimGlyph glyph{original, text, kSlimEm, {}};
  FT_Face face = m_file.get();
  if (FT_Load_Glyph(face, original, FT_LOAD_NO_SCALE | FT_LOAD_NO_BITMAP) == 0) {
    const int em = face->units_per_EM;
    glyph.advance = int(std::lround(double(face->glyph->metrics.horiAdvance) * kSlimEm / em));
    if (face->glyph->format == FT_GLYPH_FORMAT_OUTLINE) glyph.outline = slimOutline(face->glyph->outline, em);
  }
  m_glyphs.push_back(std::move(glyph));
  return unsigned(m_glyphs.size()) - 1;
}

double Font::advance(unsigned number) const { return double(m_glyphs[number].advance) / kSlimEm; }

hb_font_t* Font::shaper() {
  // Drawing on images sets another size on the same file in between.
  FT_Set_Char_Size(m_file.get(), 0, FT_F26Dot6(m_file->units_per_EM) * 64, 0, 0);
  if (!m_shaper) {
    m_shaper = hb_ft_font_create(m_file.get(), nullptr);
    hb_ft_font_set_load_flags(m_shaper, FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP);
  }
  return m_shaper;
}

}  // namespace report

#include "platform/report/font.h"

#include <QFile>
#include <any>
#include <cairo-ft.h>
#include <hb-ft.h>

namespace report {

namespace {

/// The page library keeps fonts for a while after we let them go: what they stand on goes with them.
FontFace faceFor(FT_Face face, std::any foundation) {
  FontFace written(cairo_ft_font_face_create_for_ft_face(face, FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP));
  static const cairo_user_data_key_t key = {};
  auto kept = std::make_unique<std::any>(std::move(foundation));
  const auto release = [](void* data) { delete static_cast<std::any*>(data); };
  if (cairo_font_face_set_user_data(written.get(), &key, kept.get(), release) != CAIRO_STATUS_SUCCESS) return nullptr;
  kept.release();
  return written;
}

FontOptions plainOptions() {
  FontOptions options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  return options;
}

}  // namespace

std::unique_ptr<Font> Font::open(const FontLibrary& library, const QString& path, int faceNumber) {
  std::unique_ptr<Font> font(new Font(library));
  FT_Face face = nullptr;
  if (FT_New_Face(library.get(), QFile::encodeName(path).constData(), faceNumber, &face) != 0) return nullptr;
  font->m_original = std::shared_ptr<FT_FaceRec_>(face, [library](FT_Face f) { FT_Done_Face(f); });
  FT_Select_Charmap(face, FT_ENCODING_UNICODE);
  font->m_slim = SlimFont::open(library, face);
  if (font->m_slim) font->m_face = faceFor(font->m_slim->face(), std::pair(font->m_original, font->m_slim));
  else font->m_face = faceFor(face, font->m_original);
  return font->m_face ? std::move(font) : nullptr;
}

Font::~Font() {
  for (cairo_scaled_font_t* font : std::as_const(m_scaled)) cairo_scaled_font_destroy(font);
  if (m_shaper) hb_font_destroy(m_shaper);
}

unsigned Font::lookup(char32_t character) {
  const auto known = m_glyphs.constFind(character);
  if (known != m_glyphs.constEnd()) return *known;
  const unsigned index = FT_Get_Char_Index(m_original.get(), character);
  m_glyphs.insert(character, index);
  return index;
}

double Font::advance(unsigned glyph) {
  if (m_slim) return m_slim->advance(glyph);
  const FT_Face face = m_original.get();
  if (FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE | FT_LOAD_NO_BITMAP) != 0) return 1;
  return double(face->glyph->metrics.horiAdvance) / face->units_per_EM;
}

cairo_scaled_font_t* Font::scaled(double pt) {
  cairo_scaled_font_t*& font = m_scaled[qRound(pt * 100)];
  if (!font) {
    cairo_matrix_t size, page;
    cairo_matrix_init_scale(&size, pt, pt);
    cairo_matrix_init_identity(&page);
    font = cairo_scaled_font_create(m_face.get(), &size, &page, plainOptions().get());
  }
  return font;
}

hb_font_t* Font::shaper() {
  if (!m_shaper) {
    FT_Set_Char_Size(m_original.get(), 0, FT_F26Dot6(m_original->units_per_EM) * 64, 0, 0);
    m_shaper = hb_ft_font_create(m_original.get(), nullptr);
    hb_ft_font_set_load_flags(m_shaper, FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP);
  }
  return m_shaper;
}

}  // namespace report

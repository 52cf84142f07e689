#include "platform/report/font.h"

#include <QFile>
#include <QtEndian>
#include <cairo-ft.h>
#include <hb-ft.h>

namespace report {

namespace {

// Renames the character table in the directory of a TrueType file, so that no reader finds it.
void hideCharacterTable(QByteArray& file) {
  if (!file.startsWith(QByteArray("\0\1\0\0", 4)) || file.size() < 12) return;
  const int tables = qFromBigEndian<quint16>(file.constData() + 4);
  for (int i = 0; i < tables && 12 + 16 * (i + 1) <= file.size(); ++i) {
    char* tag = file.data() + 12 + 16 * i;
    if (qstrncmp(tag, "cmap", 4) == 0) tag[0] = 'x';
  }
}

// What the page writer's font stands on. It may outlive ours: the page library keeps fonts for a while.
struct WriterFace {
  FontLibrary library;
  QByteArray file;
  FT_Face face = nullptr;

  ~WriterFace() {
    if (face) FT_Done_Face(face);
  }
};

FontFace openForWriter(const FontLibrary& library, const QString& path, int faceNumber) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return nullptr;
  auto writer = std::make_unique<WriterFace>();
  writer->library = library;
  writer->file = file.readAll();
  hideCharacterTable(writer->file);
  const auto* bytes = reinterpret_cast<const FT_Byte*>(writer->file.constData());
  if (FT_New_Memory_Face(library.get(), bytes, FT_Long(writer->file.size()), faceNumber, &writer->face) != 0)
    return nullptr;
  FontFace face(cairo_ft_font_face_create_for_ft_face(writer->face, FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP));
  static const cairo_user_data_key_t key = {};
  const auto release = [](void* data) { delete static_cast<WriterFace*>(data); };
  if (cairo_font_face_set_user_data(face.get(), &key, writer.get(), release) != CAIRO_STATUS_SUCCESS) return nullptr;
  writer.release();
  return face;
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
  if (FT_New_Face(library.get(), QFile::encodeName(path).constData(), faceNumber, &font->m_lookup) != 0) return nullptr;
  FT_Select_Charmap(font->m_lookup, FT_ENCODING_UNICODE);
  font->m_face = openForWriter(library, path, faceNumber);
  return font->m_face ? std::move(font) : nullptr;
}

Font::~Font() {
  for (cairo_scaled_font_t* font : std::as_const(m_scaled)) cairo_scaled_font_destroy(font);
  if (m_shaper) hb_font_destroy(m_shaper);
  if (m_lookup) FT_Done_Face(m_lookup);
}

unsigned Font::glyph(char32_t character) {
  const auto known = m_glyphs.constFind(character);
  if (known != m_glyphs.constEnd()) return *known;
  const unsigned index = FT_Get_Char_Index(m_lookup, character);
  m_glyphs.insert(character, index);
  return index;
}

double Font::advance(unsigned glyph) {
  const auto known = m_advances.constFind(glyph);
  if (known != m_advances.constEnd()) return *known;
  double advance = 1;
  if (FT_Load_Glyph(m_lookup, glyph, FT_LOAD_NO_SCALE | FT_LOAD_NO_BITMAP) == 0)
    advance = double(m_lookup->glyph->metrics.horiAdvance) / m_lookup->units_per_EM;
  m_advances.insert(glyph, advance);
  return advance;
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
    FT_Set_Char_Size(m_lookup, 0, FT_F26Dot6(m_lookup->units_per_EM) * 64, 0, 0);
    m_shaper = hb_ft_font_create(m_lookup, nullptr);
    hb_ft_font_set_load_flags(m_shaper, FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP);
  }
  return m_shaper;
}

}  // namespace report

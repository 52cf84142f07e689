#include "platform/report/slim_font.h"

#include "platform/report/slim_outline.h"

#include <QtEndian>
#include <cmath>
#include FT_TRUETYPE_TABLES_H

namespace report {

namespace {

constexpr unsigned kMostGlyphs = 65535;
constexpr qsizetype kRoom = 6 << 20;  // for outlines; all glyphs of the forms' fonts take 2 MB

void put16(QByteArray& bytes, qsizetype at, int value) { qToBigEndian<qint16>(qint16(value), bytes.data() + at); }
void put32(QByteArray& bytes, qsizetype at, quint32 value) { qToBigEndian<quint32>(value, bytes.data() + at); }
int get16(const QByteArray& bytes, qsizetype at) { return qFromBigEndian<qint16>(bytes.constData() + at); }

QByteArray tableOf(FT_Face face, FT_ULong tag) {
  FT_ULong length = 0;
  if (FT_Load_Sfnt_Table(face, tag, 0, nullptr, &length) != 0) return {};
  QByteArray table(qsizetype(length), 0);
  FT_Load_Sfnt_Table(face, tag, 0, reinterpret_cast<FT_Byte*>(table.data()), &length);
  return table;
}

struct Table {
  const char* tag;
  QByteArray bytes;
};

void scale16(QByteArray& table, std::initializer_list<int> places, int unitsPerEm) {
  for (const int at : places) put16(table, at, int(std::lround(double(get16(table, at)) * kSlimEm / unitsPerEm)));
}

}  // namespace

std::shared_ptr<SlimFont> SlimFont::open(const FontLibrary& library, FT_Face original) {
  if (!FT_IS_SFNT(original) || tableOf(original, FT_MAKE_TAG('g', 'l', 'y', 'f')).isEmpty()) return nullptr;
  std::shared_ptr<SlimFont> font(new SlimFont(library, original));
  font->lay();
  const auto* bytes = reinterpret_cast<const FT_Byte*>(font->m_file.constData());
  if (FT_New_Memory_Face(library.get(), bytes, FT_Long(font->m_file.size()), 0, &font->m_face) != 0) return nullptr;
  font->glyph(0);
  return font;
}

SlimFont::~SlimFont() {
  if (m_face) FT_Done_Face(m_face);
}

void SlimFont::lay() {
  const int em = m_original->units_per_EM;
  QByteArray head = tableOf(m_original, FT_MAKE_TAG('h', 'e', 'a', 'd'));
  put16(head, 18, kSlimEm);
  scale16(head, {36, 38, 40, 42}, em);  // the bounds of all glyphs
  put16(head, 50, 1);                   // places of outlines are 32-bit numbers
  QByteArray hhea = tableOf(m_original, FT_MAKE_TAG('h', 'h', 'e', 'a'));
  scale16(hhea, {4, 6, 8, 10, 12, 14, 16}, em);
  put16(hhea, 34, int(kMostGlyphs));
  QByteArray maxp = tableOf(m_original, FT_MAKE_TAG('m', 'a', 'x', 'p'));
  put16(maxp, 4, int(kMostGlyphs));
  const Table tables[] = {{"glyf", QByteArray(kRoom, 0)},
                          {"head", head},
                          {"hhea", hhea},
                          {"hmtx", QByteArray(kMostGlyphs * 4, 0)},
                          {"loca", QByteArray((kMostGlyphs + 1) * 4, 0)},
                          {"maxp", maxp},
                          {"name", tableOf(m_original, FT_MAKE_TAG('n', 'a', 'm', 'e'))}};
  const int count = int(std::size(tables));
  m_file = QByteArray(12 + 16 * count, 0);
  put32(m_file, 0, 0x00010000);
  put16(m_file, 4, count);
  for (int i = 0; i < count; ++i) {
    const qsizetype at = m_file.size();
    std::copy_n(tables[i].tag, 4, m_file.data() + 12 + 16 * i);
    put32(m_file, 12 + 16 * i + 8, quint32(at));
    put32(m_file, 12 + 16 * i + 12, quint32(tables[i].bytes.size()));
    m_file += tables[i].bytes + QByteArray((4 - tables[i].bytes.size() % 4) % 4, 0);
    if (qstrncmp(tables[i].tag, "glyf", 4) == 0) m_outlines = at;
    if (qstrncmp(tables[i].tag, "hmtx", 4) == 0) m_metrics = at;
    if (qstrncmp(tables[i].tag, "loca", 4) == 0) m_locations = at;
  }
}

// FreeType and the page library read the tables from our memory whenever they need a glyph, so that one
// that is added here is seen there. A glyph never changes once it has its number.
unsigned SlimFont::glyph(unsigned original) {
  const auto known = m_glyphs.constFind(original);
  if (known != m_glyphs.constEnd()) return *known;
  if (FT_Load_Glyph(m_original, original, FT_LOAD_NO_SCALE | FT_LOAD_NO_BITMAP) != 0) return 0;
  const FT_GlyphSlot slot = m_original->glyph;
  const QByteArray outline =
      slot->format == FT_GLYPH_FORMAT_OUTLINE ? slimOutline(slot->outline, m_original->units_per_EM) : QByteArray();
  if (m_count >= kMostGlyphs || m_used + quint32(outline.size()) > quint32(kRoom)) return 0;
  const unsigned number = m_count++;
  std::copy_n(outline.constData(), outline.size(), m_file.data() + m_outlines + m_used);
  m_used += quint32(outline.size());
  put32(m_file, m_locations + 4 * (number + 1), m_used);
  const double toSlim = double(kSlimEm) / m_original->units_per_EM;
  put16(m_file, m_metrics + 4 * number, int(std::lround(double(slot->metrics.horiAdvance) * toSlim)));
  put16(m_file, m_metrics + 4 * number + 2, outline.isEmpty() ? 0 : get16(outline, 2));
  m_glyphs.insert(original, number);
  return number;
}

double SlimFont::advance(unsigned glyph) const {
  return double(get16(m_file, m_metrics + 4 * qsizetype(glyph))) / kSlimEm;
}

}  // namespace report

#include "platform/report/text_shaper.h"

#include <hb.h>

namespace report {

namespace {

constexpr int kMostKnown = 20000;

bool isBlank(char32_t c) { return c == U' ' || c == 0xA0 || c == 0x3000; }

/// Characters that stand for themselves, one glyph each, in every text of the forms.
bool isPlain(char32_t c) {
  if (c == 0x3099 || c == 0x309A) return false;  // combining voice marks
  return (c >= 0x20 && c < 0x300) || (c >= 0x2010 && c <= 0x2027) || (c >= 0x2030 && c <= 0x205E) ||
         (c >= 0x20A0 && c <= 0x20CF) || (c >= 0x2100 && c <= 0x9FFF) || (c >= 0xF900 && c <= 0xFAFF) ||
         (c >= 0xFE30 && c <= 0xFFEF) || (c >= 0x20000 && c <= 0x3FFFF);
}

void appendUtf8(QByteArray& bytes, char32_t c) {
  if (c < 0x80) {
    bytes += char(c);
  } else if (c < 0x800) {
    bytes += char(0xC0 | (c >> 6));
    bytes += char(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    bytes += char(0xE0 | (c >> 12));
    bytes += char(0x80 | ((c >> 6) & 0x3F));
    bytes += char(0x80 | (c & 0x3F));
  } else {
    bytes += char(0xF0 | (c >> 18));
    bytes += char(0x80 | ((c >> 12) & 0x3F));
    bytes += char(0x80 | ((c >> 6) & 0x3F));
    bytes += char(0x80 | (c & 0x3F));
  }
}

/// A span of characters of one font.
struct Span {
  Font* font;
  std::u32string characters;
};

std::vector<Span> spansByFont(FontStore& fonts, Typeface face, const std::u32string& text) {
  std::vector<Span> spans;
  for (const char32_t c : text) {
    // A mark or a selector belongs to the character before it, whatever its own font.
    const bool joins = !spans.empty() && !isPlain(c) && !fonts.font(face)->has(c);
    Font* font = joins ? spans.back().font : fonts.fontFor(face, c);
    if (spans.empty() || spans.back().font != font) spans.push_back({font, {}});
    spans.back().characters += c;
  }
  return spans;
}

Run plainRun(const Span& span, double& pen) {
  Run run{span.font, {}, {}, {}};
  for (const char32_t c : span.characters) {
    const qsizetype before = run.utf8.size();
    appendUtf8(run.utf8, c);
    const unsigned glyph = span.font->glyph(c);
    run.glyphs.push_back({glyph, pen, 0});
    run.clusters.push_back({int(run.utf8.size() - before), 1});
    pen += span.font->advance(glyph);
  }
  return run;
}

/// The road for everything else: vertical forms, marks that combine, scripts of other countries.
Run shapedRun(const Span& span, bool vertical, double& pen) {
  Run run{span.font, {}, {}, {}};
  std::vector<int> ends;  // of each character in utf8
  hb_buffer_t* buffer = hb_buffer_create();
  hb_buffer_add_utf32(buffer, reinterpret_cast<const uint32_t*>(span.characters.data()), int(span.characters.size()), 0,
                      int(span.characters.size()));
  hb_buffer_guess_segment_properties(buffer);
  hb_buffer_set_direction(buffer, vertical ? HB_DIRECTION_TTB : HB_DIRECTION_LTR);
  hb_shape(span.font->shaper(), buffer, nullptr, 0);
  for (const char32_t c : span.characters) {
    appendUtf8(run.utf8, c);
    ends.push_back(int(run.utf8.size()));
  }
  unsigned count = 0;
  const hb_glyph_info_t* info = hb_buffer_get_glyph_infos(buffer, &count);
  const hb_glyph_position_t* at = hb_buffer_get_glyph_positions(buffer, &count);
  const double em = span.font->shaperEm();
  int start = 0;
  for (unsigned i = 0; i < count; ++i) {
    const double x = at[i].x_offset / em, y = -at[i].y_offset / em;
    run.glyphs.push_back({span.font->written(info[i].codepoint), vertical ? x : pen + x, vertical ? pen + y : y});
    pen += (vertical ? -at[i].y_advance : at[i].x_advance) / em;
    if (i > 0 && info[i].cluster == info[i - 1].cluster) {
      ++run.clusters.back().num_glyphs;
      continue;
    }
    unsigned next = i + 1;
    while (next < count && info[next].cluster == info[i].cluster) ++next;
    const int end = next < count ? ends[info[next].cluster - 1] : int(run.utf8.size());
    run.clusters.push_back({end - start, 1});
    start = end;
  }
  hb_buffer_destroy(buffer);
  return run;
}

// Readers of PDF drop blanks and put their own guess of one where a gap is wide. A blank that shares
// its cluster with its neighbours is given back as it was typed.
void joinBlanks(Run& run) {
  std::vector<cairo_text_cluster_t> joined;
  int byte = 0;
  bool blankBefore = false;
  for (const cairo_text_cluster_t& cluster : run.clusters) {
    const QByteArray bytes = run.utf8.mid(byte, cluster.num_bytes);
    const bool blank = bytes == " " || bytes == "\xC2\xA0" || bytes == "\xE3\x80\x80";
    byte += cluster.num_bytes;
    if (!joined.empty() && (blank || blankBefore)) {
      joined.back().num_bytes += cluster.num_bytes;
      joined.back().num_glyphs += cluster.num_glyphs;
    } else {
      joined.push_back(cluster);
    }
    blankBefore = blank;
  }
  run.clusters = std::move(joined);
}

ShapedTextPtr shapeNow(FontStore& fonts, Typeface face, const std::u32string& text, bool vertical) {
  auto shaped = std::make_shared<ShapedText>();
  for (const Span& span : spansByFont(fonts, face, text)) {
    const bool plain = !vertical && std::all_of(span.characters.begin(), span.characters.end(), isPlain);
    Run run = plain ? plainRun(span, shaped->length) : shapedRun(span, vertical, shaped->length);
    if (std::any_of(span.characters.begin(), span.characters.end(), isBlank)) joinBlanks(run);
    shaped->runs.push_back(std::move(run));
  }
  return shaped;
}

}  // namespace

ShapedTextPtr TextShaper::shape(Typeface face, const QString& text, bool vertical) {
  const QString key = QChar(u'0' + int(face) * 2 + int(vertical)) + text;
  const auto known = m_known.constFind(key);
  if (known != m_known.constEnd()) return *known;
  if (m_known.size() >= kMostKnown) m_known.clear();
  const ShapedTextPtr shaped = shapeNow(m_fonts, face, text.toStdU32String(), vertical);
  m_known.insert(key, shaped);
  return shaped;
}

ShapedTextPtr TextShaper::shapeCut(Typeface face, const QString& text, qsizetype shown, bool vertical) {
  const std::u32string all = text.toStdU32String();
  if (shown >= qsizetype(all.size())) return shape(face, text, vertical);
  const std::u32string head = all.substr(0, size_t(std::max<qsizetype>(shown, 1)));
  auto cut = std::make_shared<ShapedText>(*shapeNow(m_fonts, face, head, vertical));
  if (cut->runs.empty() || cut->runs.back().clusters.empty()) return cut;
  Run& last = cut->runs.back();
  const qsizetype before = last.utf8.size();
  for (size_t i = head.size(); i < all.size(); ++i) appendUtf8(last.utf8, all[i]);
  last.clusters.back().num_bytes += int(last.utf8.size() - before);
  return cut;
}

double TextShaper::advance(Typeface face, char32_t character) {
  Font* font = m_fonts.fontFor(face, character);
  return font ? font->advance(font->glyph(character)) : 1;
}

}  // namespace report

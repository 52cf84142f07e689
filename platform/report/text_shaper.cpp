#include "platform/report/text_shaper.h"

#include <hb.h>

#include <algorithm>

namespace report {

namespace {

constexpr int kMaxCachedTexts = 20000;

bool isBlank(char32_t c) { return c == U' ' || c == 0xA0 || c == 0x3000; }

/// Characters that always have a glyph of their own in the texts of the forms.
bool isPlain(char32_t c) {
  if (c == 0x3099 || c == 0x309A) return false;  // combining voice marks
  return (c >= 0x20 && c < 0x300) || (c >= 0x2010 && c <= 0x2027) || (c >= 0x2030 && c <= 0x205E) ||
         (c >= 0x20A0 && c <= 0x20CF) || (c >= 0x2100 && c <= 0x9FFF) || (c >= 0xF900 && c <= 0xFAFF) ||
         (c >= 0xFE30 && c <= 0xFFEF) || (c >= 0x20000 && c <= 0x3FFFF);
}

/// A span of characters of one font.
struct FontSpan {
  Font* font;
  std::u32string characters;
};

std::vector<FontSpan> spansByFont(FontStore& fonts, Typeface face, const std::u32string& text) {
  std::vector<FontSpan> spans;
  if (!fonts.font(face)) return spans;  // a machine without any font
  for (const char32_t c : text) {
    // A mark or a selector belongs to the character before it, whatever its own font.
    const bool joins = !spans.empty() && !isPlain(c) && !fonts.font(face)->has(c);
    Font* font = joins ? spans.back().font : fonts.fontFor(face, c);
    if (spans.empty() || spans.back().font != font) spans.push_back({font, {}});
    spans.back().characters += c;
  }
  return spans;
}

/// A run in the making: the text of every glyph, and whether it belongs to the glyph before.
struct Draft {
  Run run;
  std::vector<QString> texts;
  std::vector<bool> bonded;

  void add(const PlacedGlyph& glyph, const QString& text, bool bond) {
    run.glyphs.push_back(glyph);
    texts.push_back(text);
    bonded.push_back(bond && run.glyphs.size() > 1);
  }

  // Readers of PDF drop blanks and put their own guess of one where a gap is wide. A blank that is written
  // together with its neighbours comes back as it was typed.
  void bondBlanks() {
    for (size_t i = 0; i < texts.size(); ++i) {
      if (texts[i].size() != 1 || !isBlank(texts[i][0].unicode())) continue;
      if (i > 0) bonded[i] = true;
      if (i + 1 < texts.size()) bonded[i + 1] = true;
    }
  }

  Run finish() {
    bondBlanks();
    for (size_t i = 1; i < bonded.size(); ++i) {
      if (!bonded[i]) continue;
      if (run.spans.empty() || run.spans.back().first + run.spans.back().count != i)
        run.spans.push_back({i - 1, 1, texts[i - 1]});
      ++run.spans.back().count;
      run.spans.back().text += texts[i];
    }
    return std::move(run);
  }
};

Run plainRun(const FontSpan& span, double& pen) {
  Draft draft{{span.font, {}, {}}, {}, {}};
  const bool blanks = std::any_of(span.characters.begin(), span.characters.end(), isBlank);
  for (const char32_t c : span.characters) {
    const unsigned number = span.font->number(c);
    if (blanks)
      draft.add({number, pen, 0}, QString::fromUcs4(&c, 1), false);
    else
      draft.run.glyphs.push_back({number, pen, 0});
    pen += span.font->advance(number);
  }
  return draft.finish();
}

/// The road for everything else: vertical forms, marks that combine, scripts of other countries.
Run shapedRun(const FontSpan& span, bool vertical, double& pen) {
  Draft draft{{span.font, {}, {}}, {}, {}};
  hb_buffer_t* buffer = hb_buffer_create();
  const int length = int(span.characters.size());
  hb_buffer_add_utf32(buffer, reinterpret_cast<const uint32_t*>(span.characters.data()), length, 0, length);
  hb_buffer_guess_segment_properties(buffer);
  hb_buffer_set_direction(buffer, vertical ? HB_DIRECTION_TTB : HB_DIRECTION_LTR);
  hb_shape(span.font->shaper(), buffer, nullptr, 0);
  unsigned count = 0;
  const hb_glyph_info_t* info = hb_buffer_get_glyph_infos(buffer, &count);
  const hb_glyph_position_t* at = hb_buffer_get_glyph_positions(buffer, &count);
  const double em = span.font->shaperEm();
  for (unsigned i = 0; i < count; ++i) {
    const double x = at[i].x_offset / em, y = -at[i].y_offset / em;
    const bool bond = i > 0 && info[i].cluster == info[i - 1].cluster;
    unsigned next = i + 1;
    while (next < count && info[next].cluster == info[i].cluster) ++next;
    const unsigned end = next < count ? info[next].cluster : unsigned(length);
    QString text;
    if (!bond) text = QString::fromUcs4(span.characters.data() + info[i].cluster, int(end - info[i].cluster));
    const unsigned number = span.font->number(info[i].codepoint, text);
    draft.add({number, vertical ? x : pen + x, vertical ? pen + y : y}, text, bond);
    pen += (vertical ? -at[i].y_advance : at[i].x_advance) / em;
  }
  hb_buffer_destroy(buffer);
  return draft.finish();
}

std::shared_ptr<ShapedText> shapeNow(FontStore& fonts, Typeface face, const std::u32string& text,
                                     bool vertical) {
  auto shaped = std::make_shared<ShapedText>();
  for (const FontSpan& span : spansByFont(fonts, face, text)) {
    const bool plain = !vertical && std::all_of(span.characters.begin(), span.characters.end(), isPlain);
    shaped->runs.push_back(plain ? plainRun(span, shaped->length)
                                 : shapedRun(span, vertical, shaped->length));
  }
  return shaped;
}

}  // namespace

ShapedTextPtr TextShaper::shape(Typeface face, const QString& text, bool vertical) {
  const QString key = QChar(u'0' + int(face) * 2 + int(vertical)) + text;
  const auto known = m_known.constFind(key);
  if (known != m_known.constEnd()) return *known;
  if (m_known.size() >= kMaxCachedTexts) m_known.clear();
  const ShapedTextPtr shaped = shapeNow(m_fonts, face, text.toStdU32String(), vertical);
  m_known.insert(key, shaped);
  return shaped;
}

ShapedTextPtr TextShaper::shapeCut(Typeface face, const QString& text, qsizetype shown, bool vertical) {
  const std::u32string all = text.toStdU32String();
  if (shown >= qsizetype(all.size())) return shape(face, text, vertical);
  const std::u32string head = all.substr(0, size_t(std::max<qsizetype>(shown, 1)));
  const std::shared_ptr<ShapedText> cut = shapeNow(m_fonts, face, head, vertical);
  if (cut->runs.empty() || cut->runs.back().glyphs.empty()) return cut;
  Run& last = cut->runs.back();
  const size_t end = last.glyphs.size();
  if (last.spans.empty() || last.spans.back().first + last.spans.back().count != end)
    last.spans.push_back({end - 1, 1, last.font->glyph(last.glyphs.back().number).text});
  last.spans.back().text += QString::fromStdU32String(all.substr(head.size()));
  return cut;
}

double TextShaper::advance(Typeface face, char32_t character) {
  Font* font = m_fonts.fontFor(face, character);
  return font ? font->advance(font->number(character)) : 1;
}

}  // namespace report

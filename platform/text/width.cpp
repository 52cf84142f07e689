#include "platform/text/width.h"

#include <QHash>

namespace text {
namespace {

constexpr char16_t kFullToAscii = 0xFEE0;  // ！ (FF01) - ! (21)
constexpr char16_t kWideBlank = 0x3000;
constexpr char16_t kVoiced = 0xFF9E, kHalfVoiced = 0xFF9F;
constexpr char16_t kFirstHalf = 0xFF61, kLastHalf = 0xFF9F;

/// Full-width forms of U+FF61 to U+FF9F, in their order.
constexpr QStringView kFullKana =
    u"。「」、・ヲァィゥェォャュョッーアイウエオカキクケコサシスセソタチツテト"
    u"ナニヌネノハヒフヘホマミムメモヤユヨラリルレロワン゛゜";
static_assert(kFullKana.size() == kLastHalf - kFirstHalf + 1);

constexpr QStringView kVoiceable = u"カキクケコサシスセソタチツテトハヒフヘホ";
constexpr QStringView kVoicedForms = u"ガギグゲゴザジズゼゾダヂヅデドバビブベボ";
constexpr QStringView kHalfVoiceable = u"ハヒフヘホ";
constexpr QStringView kHalfVoicedForms = u"パピプペポ";
static_assert(kVoiceable.size() == kVoicedForms.size() && kHalfVoiceable.size() == kHalfVoicedForms.size());

/// The kana with the mark that follows it, or 0 if the two do not combine.
char16_t withMark(char16_t kana, char16_t mark) {
  if (mark == kVoiced && kana == u'ウ') return u'ヴ';
  const QStringView plain = mark == kVoiced ? kVoiceable : kHalfVoiceable;
  const QStringView marked = mark == kVoiced ? kVoicedForms : kHalfVoicedForms;
  const qsizetype at = plain.indexOf(QChar(kana));
  return at < 0 ? 0 : marked[at].unicode();
}

/// Half-width forms of all kana that have one.
QHash<char16_t, QString> halfForms() {
  QHash<char16_t, QString> forms;
  for (qsizetype i = 0; i < kFullKana.size(); ++i) {
    const char16_t kana = kFullKana[i].unicode();
    const QString half(QChar(static_cast<char16_t>(kFirstHalf + i)));
    forms[kana] = half;
    for (const char16_t mark : {kVoiced, kHalfVoiced})
      if (const char16_t marked = withMark(kana, mark)) forms[marked] = half + QChar(mark);
  }
  return forms;
}

}  // namespace

QString toFullWidth(const QString& text) {
  QString result;
  result.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const char16_t c = text[i].unicode();
    if (c > 0x20 && c < 0x7F) {
      result += QChar(static_cast<char16_t>(c + kFullToAscii));
    } else if (c == 0x20) {
      result += QChar(kWideBlank);
    } else if (c >= kFirstHalf && c <= kLastHalf) {
      const char16_t kana = kFullKana[c - kFirstHalf].unicode();
      const char16_t mark = i + 1 < text.size() ? text[i + 1].unicode() : 0;
      const char16_t marked = mark == kVoiced || mark == kHalfVoiced ? withMark(kana, mark) : 0;
      result += QChar(marked ? marked : kana);
      if (marked) ++i;
    } else {
      result += text[i];
    }
  }
  return result;
}

QString toHalfWidth(const QString& text) {
  static const QHash<char16_t, QString> forms = halfForms();
  QString result;
  result.reserve(text.size());
  for (const QChar c : text) {
    const char16_t code = c.unicode();
    if (code > 0xFF00 && code < 0xFF5F)
      result += QChar(static_cast<char16_t>(code - kFullToAscii));
    else if (code == kWideBlank)
      result += u' ';
    else if (const auto form = forms.constFind(code); form != forms.constEnd())
      result += *form;
    else
      result += c;
  }
  return result;
}

QString asciiDigits(const QString& text) {
  QString result = text;
  for (QChar& c : result)
    if (c >= u'０' && c <= u'９') c = QChar(static_cast<char16_t>(c.unicode() - kFullToAscii));
  return result;
}

}  // namespace text

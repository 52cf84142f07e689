#include "platform/voice/kana_reader.h"

#include <mecab.h>

#include <QByteArray>
#include <QList>

#include "platform/voice/spoken_numbers.h"
#include "platform/voice/spoken_words.h"

namespace voice {
namespace {

/// Where the system keeps the dictionary in UTF-8; the second is the system's choice of several.
constexpr const char* kDictionaries[] = {"/var/lib/mecab/dic/ipadic-utf8", "/var/lib/mecab/dic/debian"};

/// Columns of a word's entry. The reading is used and not the pronunciation that follows it: its long vowels
/// are written out (キュウ), which the voice says better than a stroke.
constexpr int kReadingColumn = 7, kColumns = 9;

/// Said for a kanji that no dictionary knows.
constexpr char16_t kUnknownKanji[] = u"カンジ";

bool isKanji(char32_t code) {
  return (code >= 0x3400 && code <= 0x9FFF) || (code >= 0xF900 && code <= 0xFAFF) ||
         (code >= 0x20000 && code <= 0x3FFFF) || code == u'々' || code == u'〆';
}

bool hasKanji(const QString& text) {
  for (const uint code : text.toUcs4())
    if (isKanji(code)) return true;
  return false;
}

/// Katakana throughout; pauses in a row as one, none at the ends; ュー as ュウ, whose stroke the voice spells
/// out.
QString tidied(QString text) {
  constexpr char16_t kToKatakana = u'ァ' - u'ぁ';
  for (QChar& c : text)
    if (c >= u'ぁ' && c <= u'ゖ') c = QChar(static_cast<char16_t>(c.unicode() + kToKatakana));
  while (text.contains(u"、、")) text.replace(QStringLiteral("、、"), QStringLiteral("、"));
  if (text.startsWith(u'、')) text.remove(0, 1);
  if (text.endsWith(u'、')) text.chop(1);
  return text.replace(QStringLiteral("ュー"), QStringLiteral("ュウ")).simplified();
}

}  // namespace

struct KanaReader::Dictionary {
  std::unique_ptr<MeCab::Tagger> tagger;

  /// The tagger on the first dictionary that is there and in UTF-8.
  static std::unique_ptr<Dictionary> open() {
    for (const char* folder : kDictionaries) {
      const QByteArray options = QByteArray("-r /dev/null -d ") + folder;
      std::unique_ptr<MeCab::Tagger> tagger(MeCab::createTagger(options.constData()));
      if (tagger && QByteArray(tagger->dictionary_info()->charset).toUpper().replace("-", "") == "UTF8")
        return std::make_unique<Dictionary>(Dictionary{std::move(tagger)});
    }
    return nullptr;
  }

  QString reading(const QString& text) const {
    const QByteArray bytes = text.toUtf8();
    QString result;
    for (const MeCab::Node* node = tagger->parseToNode(bytes.constData(), static_cast<size_t>(bytes.size()));
         node; node = node->next) {
      // The dictionary passes over blanks; between figures they part them.
      if (node->rlength > node->length && !result.isEmpty()) result += u' ';
      const QList<QByteArray> columns = QByteArray(node->feature).split(',');
      const bool known = columns.size() == kColumns && columns[kReadingColumn] != "*";
      result += known ? QString::fromUtf8(columns[kReadingColumn])
                      : QString::fromUtf8(node->surface, static_cast<qsizetype>(node->length));
    }
    return result;
  }
};

KanaReader::KanaReader() : m_dictionary(Dictionary::open()) {}

KanaReader::~KanaReader() = default;

bool KanaReader::hasDictionary() const { return m_dictionary != nullptr; }

QString KanaReader::read(const QString& text) const {
  QString reading = tradeReadings(spokenSigns(spokenNumbers(readableWidth(text))));
  if (m_dictionary && hasKanji(reading)) reading = m_dictionary->reading(reading);
  if (!hasKanji(reading)) return tidied(reading);
  QString kana;
  for (const uint code : reading.toUcs4()) {
    const QString character = QString::fromUcs4(reinterpret_cast<const char32_t*>(&code), 1);
    const QString said = isKanji(code) && m_dictionary ? m_dictionary->reading(character) : character;
    kana += hasKanji(said) ? QString::fromUtf16(kUnknownKanji) : said;
  }
  return tidied(kana);
}

}  // namespace voice

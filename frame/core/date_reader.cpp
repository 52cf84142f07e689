#include "frame/core/date_reader.h"

namespace frame {
namespace {

constexpr char16_t kFirstYear = u'元';
constexpr int kLongestEraYear = 3;

/// Full-width ASCII and the wide blank as their plain forms.
char16_t plain(QChar c) {
  const char16_t code = c.unicode();
  if (code > 0xFF00 && code < 0xFF5F) return static_cast<char16_t>(code - 0xFEE0);
  return code == 0x3000 ? u' ' : code;
}

bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
bool isSeparator(char16_t c) { return c == u'/' || c == u'-' || c == u'.'; }

/// Walks over a text; every step says whether it fitted.
class Cursor {
 public:
  explicit Cursor(QStringView text) : m_text(text) { skipBlanks(); }

  bool atEnd() const { return m_at >= m_text.size(); }
  char16_t peek() const { return atEnd() ? u'\0' : plain(m_text[m_at]); }
  void skip(qsizetype count = 1) {
    m_at += count;
    skipBlanks();
  }
  bool take(char16_t c) {
    if (peek() != c) return false;
    skip();
    return true;
  }
  bool startsWith(QStringView word) const { return m_text.mid(m_at).startsWith(word); }

  /// A number and how many digits it had; at most `most` of them.
  std::optional<int> number(int most, int* digits = nullptr) {
    int value = 0, count = 0;
    for (; isDigit(peek()) && count <= most; ++m_at, ++count) value = value * 10 + (peek() - u'0');
    skipBlanks();
    if (digits) *digits = count;
    if (count == 0 || count > most) return std::nullopt;
    return value;
  }

 private:
  void skipBlanks() {
    while (!atEnd() && plain(m_text[m_at]) == u' ') ++m_at;
  }
  QStringView m_text;
  qsizetype m_at = 0;
};

const Era* takeEra(Cursor& cursor) {
  const char16_t letter = cursor.peek() >= u'a' ? cursor.peek() - (u'a' - u'A') : cursor.peek();
  for (const Era& era : eras()) {
    const bool whole = cursor.startsWith(era.name);
    if (!whole && cursor.peek() != era.name[0] && letter != era.letter) continue;
    cursor.skip(whole ? 2 : 1);
    return &era;
  }
  return nullptr;
}

std::optional<int> takeYear(Cursor& cursor, const Era* era) {
  if (era && cursor.take(kFirstYear)) return 1;
  int digits = 0;
  const auto year = cursor.number(era ? kLongestEraYear : 4, &digits);
  if (!year || (era ? *year < 1 : digits != 4 || *year < 100)) return std::nullopt;
  return year;
}

/// A time of day, h:m or h:m:s.
bool takeTime(Cursor& cursor) {
  const auto hour = cursor.number(2);
  if (!hour || *hour > 23 || !cursor.take(u':')) return false;
  const auto minute = cursor.number(2);
  if (!minute || *minute > 59) return false;
  if (!cursor.take(u':')) return true;
  const auto second = cursor.number(2);
  return second && *second <= 59;
}

/// Month and day after the year; a missing day is the first.
std::optional<std::pair<int, int>> takeMonthAndDay(Cursor& cursor) {
  const char16_t separator = cursor.peek();
  if (separator != u'年' && !isSeparator(separator)) return std::nullopt;
  cursor.skip();
  const auto month = cursor.number(2);
  if (!month) return std::nullopt;
  const bool inWords = separator == u'年';
  const bool behindMonth = cursor.take(inWords ? u'月' : separator);
  if (cursor.atEnd()) return inWords == behindMonth ? std::optional(std::pair(*month, 1)) : std::nullopt;
  if (!behindMonth) return std::nullopt;
  const auto day = cursor.number(2);
  if (!day) return std::nullopt;
  if (inWords) cursor.take(u'日');
  return std::pair(*month, *day);
}

}  // namespace

std::optional<ReadDate> readDate(QStringView text, bool reiwaKnown) {
  Cursor cursor(text);
  const Era* era = takeEra(cursor);
  if (era && era->letter == u'R' && !reiwaKnown) return std::nullopt;
  const auto year = takeYear(cursor, era);
  if (!year) return std::nullopt;
  const auto monthAndDay = takeMonthAndDay(cursor);
  if (!monthAndDay || (!cursor.atEnd() && !takeTime(cursor)) || !cursor.atEnd()) return std::nullopt;
  const QDate date(*year + (era ? era->baseYear() : 0), monthAndDay->first, monthAndDay->second);
  if (!date.isValid()) return std::nullopt;
  return ReadDate{date, era, *year};
}

}  // namespace frame

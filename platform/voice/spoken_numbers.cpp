#include "platform/voice/spoken_numbers.h"

#include <array>
#include <optional>

#include "platform/voice/voice_channel.h"

namespace voice {
namespace {

/// From this length on a number is a mark and no quantity.
constexpr qsizetype kLongNumber = 8;

constexpr std::array kDays = {u"",       u"ツイタチ", u"フツカ", u"ミッカ",   u"ヨッカ", u"イツカ",
                              u"ムイカ", u"ナノカ",   u"ヨウカ", u"ココノカ", u"トオカ"};

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

QString dayName(int day) {
  if (day >= 1 && day < static_cast<int>(kDays.size()))
    return QString::fromUtf16(kDays[static_cast<size_t>(day)]);
  if (day == 14) return QStringLiteral("ジュウヨッカ");
  if (day == 20) return QStringLiteral("ハツカ");
  if (day == 24) return QStringLiteral("ニジュウヨッカ");
  return QString::number(day) + QStringLiteral("ニチ");
}

/// A number whose last figure sounds otherwise before what it counts (シガツ, クジ, ヨネン).
QString withFigures(int number, QStringView four, QStringView seven, QStringView nine, QStringView unit) {
  const int tens = number / 10 * 10, last = number % 10;
  const QStringView figure = last == 4 ? four : last == 7 ? seven : last == 9 ? nine : QStringView();
  if (figure.isEmpty()) return QString::number(number).append(unit);
  return (tens ? QString::number(tens) : QString()).append(figure).append(unit);
}

QString monthName(int month) { return withFigures(month, u"シ", u"シチ", u"ク", u"ガツ"); }
QString hourName(int hour) { return withFigures(hour, u"ヨ", u"シチ", u"ク", u"ジ"); }
QString yearName(int year) { return withFigures(year, u"ヨ", u"", u"", u"ネン"); }

QString minuteName(int minute) {
  constexpr QStringView kHard = u"013468";  // イップン, サンプン, ヨンプン, ロップン, ハップン, ジュップン
  const bool hard = minute > 0 && kHard.contains(QChar(u'0' + minute % 10));
  return QString::number(minute) + (hard ? QStringLiteral("プン") : QStringLiteral("フン"));
}

/// "1日" in a count of days, not in a date: 1日間, 1日分.
bool countsDays(QStringView behind) {
  for (const QStringView word :
       {QStringView(u"間"), QStringView(u"分"), QStringView(u"当"), QStringView(u"目")})
    if (behind.startsWith(word)) return true;
  return false;
}

/// Walks over the text and writes what is said.
class Speaker {
 public:
  explicit Speaker(const QString& text) : m_text(text) {}

  QString spoken() {
    while (m_at < m_text.size()) {
      if (m_text[m_at] == u'-')
        dash();
      else if (!isDigit(m_text[m_at]))
        m_result += m_text[m_at++];
      else if (!date() && !time())
        number();
    }
    return m_result;
  }

 private:
  QString digitsAt(qsizetype at) const {
    qsizetype end = at;
    while (end < m_text.size() && isDigit(m_text[end])) ++end;
    return m_text.mid(at, end - at);
  }

  QChar charAt(qsizetype at) const { return at < m_text.size() ? m_text[at] : QChar(u'\0'); }

  /// A dash before a number that begins there is a minus; any other one is a pause.
  void dash() {
    const QChar before = m_at > 0 ? m_text[m_at - 1] : u' ';
    const bool begins = before == u' ' || before == u'(' || before == kSpeechSeparator;
    m_result += begins && isDigit(charAt(m_at + 1)) ? QStringLiteral("マイナス") : QStringLiteral("、");
    ++m_at;
  }

  /// 2024/10/1, with four digits of the year.
  bool date() {
    const QString year = digitsAt(m_at);
    qsizetype at = m_at + year.size();
    if (year.size() != 4 || charAt(at) != u'/') return false;
    const QString month = digitsAt(at + 1);
    at += 1 + month.size();
    if (month.isEmpty() || month.size() > 2 || charAt(at) != u'/') return false;
    const QString day = digitsAt(at + 1);
    if (day.isEmpty() || day.size() > 2) return false;
    m_at = at + 1 + day.size();
    m_result += yearName(year.toInt()) + monthName(month.toInt()) + dayName(day.toInt());
    return true;
  }

  /// 10:30.
  bool time() {
    const QString hour = digitsAt(m_at), minute = digitsAt(m_at + hour.size() + 1);
    if (hour.size() > 2 || minute.size() != 2 || charAt(m_at + hour.size()) != u':') return false;
    m_at += hour.size() + 1 + minute.size();
    m_result += hourName(hour.toInt());
    if (minute.toInt() > 0) m_result += minuteName(minute.toInt());
    return true;
  }

  void number() {
    QString digits = digitsAt(m_at);
    m_at += digits.size();
    while (charAt(m_at) == u',' && digitsAt(m_at + 1).size() == 3) {
      digits += digitsAt(m_at + 1);
      m_at += 4;
    }
    if (counted(digits)) return;
    const bool joined = charAt(m_at) == u'-' && isDigit(charAt(m_at + 1));
    if (joined || m_inMark || digits.size() >= kLongNumber || (digits.size() > 1 && digits[0] == u'0')) {
      mark(digits, joined);
    } else {
      m_result += digits;
    }
  }

  /// A number and the counter character that follows it.
  bool counted(const QString& digits) {
    if (digits.size() > 4) return false;
    const int value = digits.toInt();
    const QString said = countedName(value);
    if (said.isNull()) return false;
    m_result += said;
    ++m_at;
    return true;
  }

  QString countedName(int value) const {
    switch (charAt(m_at).unicode()) {
      case u'年':
        return yearName(value);
      case u'月':
        return monthName(value);
      case u'日':
        if (value == 1 && countsDays(QStringView(m_text).mid(m_at + 1))) return QStringLiteral("1ニチ");
        return dayName(value);
      case u'時':
        return hourName(value);
      case u'分':
        return minuteName(value);
      case u'人':
        if (value == 1) return QStringLiteral("ヒトリ");
        if (value == 2) return QStringLiteral("フタリ");
        return withFigures(value, u"ヨ", u"", u"", u"ニン");
      default:
        return QString();
    }
  }

  /// Digit by digit; the parts of a telephone number with ノ between.
  void mark(const QString& digits, bool joined) {
    for (qsizetype i = 0; i < digits.size(); ++i) {
      if (i > 0) m_result += u' ';
      m_result += digits[i];
    }
    if (joined) {
      m_result += u'ノ';
      ++m_at;
    }
    m_inMark = joined;
  }

  const QString& m_text;
  QString m_result;
  qsizetype m_at = 0;
  bool m_inMark = false;
};

}  // namespace

QString spokenNumbers(const QString& text) { return Speaker(text).spoken(); }

}  // namespace voice

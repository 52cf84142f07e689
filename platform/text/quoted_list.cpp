#include "platform/text/quoted_list.h"

namespace text {
namespace {

constexpr QChar kQuote = u'"';
constexpr QChar kComma = u',';
/// Older programs end a file with this character.
constexpr QChar kEndOfFile{0x1A};

bool isLineEnd(QChar c) { return c == u'\r' || c == u'\n'; }
bool isBlank(QChar c) { return c == u' ' || c == u'\t'; }

class Reader {
 public:
  explicit Reader(const QString& text) : m_text(text) {
    const qsizetype end = text.endsWith(kEndOfFile) ? text.size() - 1 : text.size();
    m_text = QStringView(text).left(end);
  }

  bool atEnd() const { return m_at >= m_text.size(); }

  QStringList record() {
    QStringList fields;
    bool more = true;
    while (more) {
      fields.append(field());
      more = !atEnd() && m_text[m_at] == kComma;
      if (more) ++m_at;
    }
    skipLineEnd();
    return fields;
  }

  void skipEmptyLines() {
    while (!atEnd() && isLineEnd(m_text[m_at])) ++m_at;
  }

 private:
  QString field() {
    while (!atEnd() && isBlank(m_text[m_at])) ++m_at;
    return !atEnd() && m_text[m_at] == kQuote ? quoted() : unquoted();
  }

  QString unquoted() {
    const qsizetype begin = m_at;
    while (!atEnd() && m_text[m_at] != kComma && !isLineEnd(m_text[m_at])) ++m_at;
    qsizetype end = m_at;
    while (end > begin && isBlank(m_text[end - 1])) --end;
    return m_text.mid(begin, end - begin).toString();
  }

  QString quoted() {
    QString value(QLatin1String(""));
    for (++m_at; !atEnd(); ++m_at) {
      const QChar c = m_text[m_at];
      if (c == kQuote && followedByQuote()) {
        ++m_at;
      } else if (c == kQuote && endsField()) {
        return value;
      }
      value += c;
    }
    return value;
  }

  bool followedByQuote() const { return m_at + 1 < m_text.size() && m_text[m_at + 1] == kQuote; }

  /// A quote closes its field only before a comma, a line's end or the end; then that is where the reader is.
  bool endsField() {
    qsizetype next = m_at + 1;
    while (next < m_text.size() && isBlank(m_text[next])) ++next;
    if (next < m_text.size() && m_text[next] != kComma && !isLineEnd(m_text[next])) return false;
    m_at = next;
    return true;
  }

  void skipLineEnd() {
    if (!atEnd() && m_text[m_at] == u'\r') ++m_at;
    if (!atEnd() && m_text[m_at] == u'\n') ++m_at;
  }

  QStringView m_text;
  qsizetype m_at = 0;
};

}  // namespace

QString writeQuotedList(const QStringList& fields) {
  QString line;
  for (const QString& field : fields) {
    if (!line.isEmpty()) line += kComma;
    line += kQuote + QString(field).replace(kQuote, QStringLiteral("\"\"")) + kQuote;
  }
  return line + QStringLiteral("\r\n");
}

QList<QStringList> readQuotedRecords(const QString& text) {
  QList<QStringList> records;
  Reader reader(text);
  for (reader.skipEmptyLines(); !reader.atEnd(); reader.skipEmptyLines()) records.append(reader.record());
  return records;
}

QStringList readQuotedList(const QString& text) {
  QStringList fields;
  for (const QStringList& record : readQuotedRecords(text)) fields += record;
  return fields;
}

}  // namespace text

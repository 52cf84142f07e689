#include "platform/store/scanner.h"

namespace store {
namespace {

constexpr QStringView kMarks = u"=<>,'()[];";

bool endsWord(QChar letter) { return letter.isSpace() || kMarks.contains(letter); }

}  // namespace

void Scanner::skipBlanks() {
  while (m_at < m_text.size() && m_text[m_at].isSpace()) ++m_at;
}

bool Scanner::atEnd() {
  skipBlanks();
  return m_at == m_text.size();
}

bool Scanner::takeWord(QStringView word) {
  skipBlanks();
  if (QStringView(m_text).mid(m_at, word.size()).compare(word, Qt::CaseInsensitive) != 0) return false;
  const qsizetype end = m_at + word.size();
  if (end < m_text.size() && !endsWord(m_text[end])) return false;
  m_at = end;
  return true;
}

bool Scanner::takeMark(QStringView mark) {
  skipBlanks();
  if (!QStringView(m_text).mid(m_at).startsWith(mark)) return false;
  m_at += mark.size();
  return true;
}

QString Scanner::takeName() {
  if (takeMark(u"[")) {
    const qsizetype end = m_text.indexOf(u']', m_at);
    if (end < 0) return {};
    const QString name = m_text.mid(m_at, end - m_at);
    m_at = end + 1;
    return name;
  }
  skipBlanks();
  const qsizetype start = m_at;
  while (m_at < m_text.size() && !endsWord(m_text[m_at])) ++m_at;
  return m_text.mid(start, m_at - start);
}

Result<QString> Scanner::takeQuoted() {
  if (!takeMark(u"'")) return fault();
  const qsizetype end = m_text.indexOf(u'\'', m_at);
  if (end < 0) return fault();
  const QString text = m_text.mid(m_at, end - m_at);
  m_at = end + 1;
  // kept: a quote is never escaped by doubling it, so what follows must be a blank, a mark or the end
  if (m_at < m_text.size() && (!endsWord(m_text[m_at]) || m_text[m_at] == u'\'')) return fault();
  return text.isNull() ? QStringLiteral("") : text;
}

Result<QString> Scanner::takeValue() {
  skipBlanks();
  if (m_at < m_text.size() && m_text[m_at] == u'\'') return takeQuoted();
  const qsizetype start = m_at;
  while (m_at < m_text.size() && !endsWord(m_text[m_at])) ++m_at;
  if (m_at == start) return fault();
  return m_text.mid(start, m_at - start);
}

QString Scanner::takeRest() {
  skipBlanks();
  const QString rest = m_text.mid(m_at);
  m_at = m_text.size();
  return rest;
}

Fault Scanner::fault() const {
  return {QStringLiteral("クエリ式「%1」の構文に誤りがあります。").arg(m_text)};
}

}  // namespace store

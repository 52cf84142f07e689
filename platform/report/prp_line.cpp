#include "platform/report/prp_line.h"

#include <cmath>

namespace report {

namespace {

constexpr double kMaxLength = 2000;  // mm; no paper is larger

}  // namespace

PrpLine::PrpLine(const QString& file, int number, const QString& text) : m_file(file), m_line(number) {
  split(text);
}

void PrpLine::split(const QString& text) {
  qsizetype i = 0;
  while (i < text.size()) {
    const QChar c = text[i];
    // Only the half-width blank and the tab part words: the ideographic blank is a letter of captions.
    if (c == u' ' || c == u'\t') {
      ++i;
      continue;
    }
    if (c == u'#' && m_words.empty()) return;
    PrpWord word;
    if (c == u'"') {
      word.quoted = true;
      for (++i;; ++i) {
        if (i >= text.size()) fail(QStringLiteral("a closing quote"));
        if (text[i] != u'"') {
          word.text += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == u'"') {
          word.text += text[i++];
        } else {
          break;
        }
      }
      ++i;
    } else {
      while (i < text.size() && text[i] != u' ' && text[i] != u'\t') word.text += text[i++];
    }
    m_words.push_back(word);
  }
}

QString PrpLine::word(const char* what) {
  if (empty() || nextIsText()) fail(QString::fromUtf8(what));
  return m_words[m_at++].text;
}

QString PrpLine::text(const char* what) {
  if (!nextIsText()) fail(QString::fromUtf8(what));
  return m_words[m_at++].text;
}

double PrpLine::number(const char* what) {
  bool ok = false;
  const double value = empty() || nextIsText() ? 0 : m_words[m_at].text.toDouble(&ok);
  if (!ok || !(std::abs(value) <= kMaxLength)) fail(QString::fromUtf8(what));
  ++m_at;
  return value;
}

int PrpLine::count(const char* what) {
  bool ok = false;
  const int value = empty() || nextIsText() ? 0 : m_words[m_at].text.toInt(&ok);
  if (!ok || value < 1 || value > 1000) fail(QString::fromUtf8(what));
  ++m_at;
  return value;
}

bool PrpLine::take(const char* word) {
  if (empty() || nextIsText() || m_words[m_at].text != QLatin1String(word)) return false;
  ++m_at;
  return true;
}

QString PrpLine::rest() {
  QStringList left;
  for (; !empty(); ++m_at) left << m_words[m_at].text;
  return left.join(u' ');
}

void PrpLine::end() const {
  if (!empty()) fail(QStringLiteral("the end of the line, not \"%1\"").arg(m_words[m_at].text));
}

void PrpLine::fail(const QString& expected) const { throw PrpFault{m_file, m_line, expected}; }

std::optional<QStringList> expandNames(const QString& name) {
  const qsizetype dots = name.indexOf(QLatin1String(".."));
  if (dots < 0) return QStringList{name};
  qsizetype start = dots;
  while (start > 0 && name[start - 1] >= u'0' && name[start - 1] <= u'9') --start;
  bool okFrom = false, okTo = false;
  const int from = QStringView(name).mid(start, dots - start).toInt(&okFrom);
  const int to = QStringView(name).mid(dots + 2).toInt(&okTo);
  if (!okFrom || !okTo || to < from || to - from >= 1000) return std::nullopt;
  QStringList names;
  for (int i = from; i <= to; ++i) names << name.left(start) + QString::number(i);
  return names;
}

}  // namespace report

#include "platform/screen/captions.h"

namespace screen {
namespace {

bool marksKey(const QString& caption, qsizetype at) {
  if (at + 1 >= caption.size()) return false;
  const QChar next = caption.at(at + 1);
  return next.unicode() < 0x80 && next.isLetterOrNumber();
}

}  // namespace

QString shownCaption(const QString& caption) {
  QString shown;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    shown += caption.at(i);
    if (caption.at(i) != u'&' || marksKey(caption, i)) continue;
    shown += u'&';
    if (i + 1 < caption.size() && caption.at(i + 1) == u'&') ++i;
  }
  return shown;
}

QString spokenCaption(const QString& caption) {
  QString spoken;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    const bool bracketed = caption.at(i) == u'(' && i + 3 < caption.size() && caption.at(i + 1) == u'&' &&
                           caption.at(i + 3) == u')';
    if (bracketed) {
      i += 3;
      continue;
    }
    if (caption.at(i) == u'&') {
      if (marksKey(caption, i)) continue;
      if (i + 1 < caption.size() && caption.at(i + 1) == u'&') ++i;
    }
    spoken += caption.at(i);
  }
  return spoken;
}

QString accessibleCaption(const QString& caption) {
  QString name = spokenCaption(caption).trimmed();
  while (name.endsWith(u':') || name.endsWith(u'：')) name = name.chopped(1).trimmed();
  return name.isEmpty() ? spokenCaption(caption) : name;
}

QString numbered(const char16_t* pattern, int number) {
  return QString::fromUtf16(pattern).replace(QLatin1String("%1"), QString::number(number));
}

}  // namespace screen

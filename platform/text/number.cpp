#include "platform/text/number.h"

#include <cmath>

#include "platform/text/width.h"

namespace text {
namespace {

/// The leading number of a text as plain characters, and whether the whole text was that number.
struct Leading {
  QByteArray number;
  bool whole = false;
};

Leading leadingNumber(const QString& text) {
  const QString plain = toHalfWidth(text).trimmed();
  Leading result;
  bool digits = false, point = false;
  qsizetype at = 0;
  if (!plain.isEmpty() && (plain[0] == u'-' || plain[0] == u'+')) result.number += plain[at++].toLatin1();
  for (; at < plain.size(); ++at) {
    const QChar c = plain[at];
    if (c >= u'0' && c <= u'9') {
      digits = true;
    } else if (c == u',' && digits && !point) {
      continue;
    } else if (c == u'.' && !point) {
      point = true;
    } else {
      break;
    }
    result.number += c.toLatin1();
  }
  if (!digits) return {};
  result.whole = at == plain.size();
  return result;
}

}  // namespace

QString thousands(qint64 number) {
  if (number == 0) return QString(QLatin1String(""));
  QString digits = QString::number(number);
  const qsizetype first = number < 0 ? 1 : 0;
  for (qsizetype at = digits.size() - 3; at > first; at -= 3) digits.insert(at, u',');
  return digits;
}

bool isNumeric(const QString& text) { return leadingNumber(text).whole; }

qint64 intOf(const QString& text) {
  QByteArray number = leadingNumber(text).number;
  if (const qsizetype point = number.indexOf('.'); point >= 0) number.truncate(point);
  return number.toLongLong();
}

double numberOf(const QString& text) { return leadingNumber(text).number.toDouble(); }

qint64 roundHalfEven(double number) {
  const double down = std::floor(number);
  const double rest = number - down;
  const auto whole = static_cast<qint64>(down);
  if (rest > 0.5) return whole + 1;
  if (rest < 0.5) return whole;
  return whole % 2 == 0 ? whole : whole + 1;
}

}  // namespace text

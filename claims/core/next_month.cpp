#include "claims/core/carry_forward.h"
#include "frame/core/eras.h"
#include "platform/text/width.h"

namespace claims {
namespace {

/// The era that a text begins with; nullptr: none.
const frame::Era* eraNamed(QStringView text) {
  for (const frame::Era& era : frame::eras())
    if (text.startsWith(QStringView(era.name))) return &era;
  return nullptr;
}

/// The whole number of at most three digits that a text is, 0 where it is none.
int wholeNumber(const QString& text) {
  const QString digits = text::asciiDigits(text).trimmed();
  bool ok = false;
  const int number = digits.toInt(&ok);
  return ok && number > 0 && number < 1000 ? number : 0;
}

struct EraMonth {
  const frame::Era* era = nullptr;
  int year = 0;
  int month = 0;
};

std::optional<EraMonth> parseEraMonth(const QString& text) {
  const qsizetype yearEnd = text.indexOf(u'年', 2);
  const qsizetype monthEnd = yearEnd < 0 ? -1 : text.indexOf(u'月', yearEnd);
  if (monthEnd < 0) return std::nullopt;
  EraMonth result;
  result.era = eraNamed(text);
  const QString year = text.mid(2, yearEnd - 2);
  result.year = year.trimmed() == u"元" ? 1 : wholeNumber(year);
  result.month = wholeNumber(text.mid(yearEnd + 1, monthEnd - yearEnd - 1));
  if (!result.era || result.year == 0 || result.month == 0 || result.month > 12) return std::nullopt;
  return result;
}

QString eraMonthText(const QString& era, int year, int month) {
  return era + QString::number(year) + u'年' + QString::number(month) + u'月';
}

}  // namespace

std::optional<NextMonth> nextMonth(const QString& claimMonth) {
  const auto from = parseEraMonth(claimMonth);
  if (!from) return std::nullopt;
  const int month = from->month == 12 ? 1 : from->month + 1;
  const int year = from->month == 12 ? from->year + 1 : from->year;
  const QDate first(from->era->baseYear() + year, month, 1);
  const frame::Era* now = frame::eraOf(first);
  // After its last day an era gives way to the next; before its first day it remains as typed.
  const bool past = now && now->begin() > from->era->begin();
  const frame::Era& era = past ? *now : *from->era;
  const QString text = eraMonthText(era.nameText(), first.year() - era.baseYear(), month);
  return NextMonth{text, QString::number(month)};
}

}  // namespace claims

#include "printing/core/sheet.h"

#include <QRegularExpression>

namespace printing {

namespace {

constexpr const char16_t* kEras[] = {u"明治", u"大正", u"昭和", u"平成", u"令和"};

void showWords(Sheet& sheet, const QString& number, const DateWords& words) {
  sheet.fields.show(QStringLiteral("GG") + number, words.era);
  sheet.fields.show(QStringLiteral("YY") + number, words.year);
  sheet.fields.show(QStringLiteral("MM") + number, words.month);
  sheet.fields.show(QStringLiteral("DD") + number, words.day);
}

DateWords wordsOf(const frame::EraParts& parts) {
  return {parts.era, QString::number(parts.year), QString::number(parts.month), QString::number(parts.day)};
}

}  // namespace

bool Sheet::lateElderly() const { return insuranceIs({u"後期高齢"}); }

bool Sheet::insuranceIs(std::initializer_list<const char16_t*> kinds) const {
  const QString kind = value(u"保険の種類");
  for (const char16_t* name : kinds)
    if (kind == QString::fromUtf16(name)) return true;
  return false;
}

DateWords dateWords(const QString& text, const frame::EraDates& dates) {
  if (text.isEmpty()) return {};
  if (const auto parts = dates.parts(text)) return wordsOf(*parts);
  static const QRegularExpression eraText(
      QStringLiteral("^(明治|大正|昭和|平成|令和)\\s*(\\d+|元)[年/](?:(\\d+)[月/]?(.*?)日?)?$"));
  const auto match = eraText.match(text);
  if (!match.hasMatch()) return {};
  const QString year = match.captured(2) == u"元" ? QStringLiteral("1") : match.captured(2);
  return {match.captured(1), year, match.captured(3), match.captured(4)};
}

void showDate(Sheet& sheet, const QString& number, const QString& text) {
  showWords(sheet, number, dateWords(text, sheet.dates));
}

void showDate(Sheet& sheet, const QString& number, QDate date) {
  if (date.isValid()) showWords(sheet, number, wordsOf(frame::EraDates::partsOf(date)));
}

int eraNumber(const QString& era) {
  for (int i = 0; i < 5; ++i)
    if (era == QString::fromUtf16(kEras[i])) return i + 1;
  return 0;
}

}  // namespace printing

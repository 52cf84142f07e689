#include "printing/core/sheet.h"

#include <QRegularExpression>

namespace printing {

namespace {

constexpr const char16_t* kEras[] = {u"明治", u"大正", u"昭和", u"平成", u"令和"};

void printWords(Sheet& sheet, const DateItems& items, const DateWords& words) {
  sheet.print(items.era, words.era);
  sheet.print(items.year, words.year);
  sheet.print(items.month, words.month);
  sheet.print(items.day, words.day);
}

DateWords wordsOf(const frame::EraParts& parts) {
  return {parts.era, QString::number(parts.year), QString::number(parts.month), QString::number(parts.day)};
}

}  // namespace

void Sheet::copy(std::span<const ItemRow> rows) {
  for (const ItemRow& row : rows) copy(row.item, row.column);
}

void Sheet::markTicked(std::span<const ItemRow> rows) {
  for (const ItemRow& row : rows) markIf(ticked(row.column), row.item);
}

bool Sheet::fit(std::span<const ItemSize> sizes, const QString& text) {
  for (const ItemSize& size : sizes) {
    const Variant variant{size.upTo, size.item.name()};
    if (fields.variant({&variant, 1}, text)) return true;
  }
  return false;
}

bool Sheet::lateElderly() const { return insuranceIs({u"後期高齢"}); }

bool Sheet::insuranceIs(std::initializer_list<const char16_t*> kinds) const {
  const QString kind = value(claim::insuranceKind);
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

void printDate(Sheet& sheet, const DateItems& items, const QString& text) {
  printWords(sheet, items, dateWords(text, sheet.dates));
}

void printDate(Sheet& sheet, const DateItems& items, QDate date) {
  if (date.isValid()) printWords(sheet, items, wordsOf(frame::EraDates::partsOf(date)));
}

int eraNumber(const QString& era) {
  for (int i = 0; i < 5; ++i)
    if (era == QString::fromUtf16(kEras[i])) return i + 1;
  return 0;
}

}  // namespace printing

#include "claims/core/amount_record.h"

#include "claims/core/amount_item_checks.h"
#include "platform/text/number.h"

namespace claims {
namespace {

/// A box of the form; a blank one counts as 0.
qint64 boxNumber(const AreaBoxes& boxes, int box) {
  const auto at = static_cast<size_t>(box);
  return (at < boxes.areas.size() ? boxes.areas[at] : boxes.limbs[at - boxes.areas.size()]).toLongLong();
}

qint64 figureOf(const AmountItem& item, const ClaimAmounts& amounts, const AreaBoxes& boxes) {
  switch (item.figure) {
    case Figure::AreaBox:
      return boxNumber(boxes, item.areaBox);
    case Figure::Total:
      return amounts.total;
    case Figure::Share:
      return amounts.share;
    case Figure::Claim:
      return amounts.claim;
    case Figure::None:
      break;
  }
  return 0;
}

/// The numbers of an item in the order of its fields.
QVector<qint64> numbersOf(const AmountItem& item, const AmountLine& line) {
  switch (item.field.parts) {
    case RecordFields::Line:
      return {line.unit, line.count, line.amount};
    case RecordFields::Count:
      return {line.count};
    case RecordFields::Amount:
      break;
  }
  return {line.amount};
}

}  // namespace

store::Column recordColumn(Kind kind) {
  return kind == Kind::Massage ? claim::massageRecord : claim::hariRecord;
}

QString amountRecord(const ClaimAmounts& amounts, const AreaBoxes& boxes) {
  if (amounts.version == nullptr) return {};
  const std::span<const AmountItem> items = amounts.items();
  QVector<qint64> numbers(lastField(items, *amounts.version) + 1);
  for (size_t i = 0; i < items.size(); ++i) {
    const AmountItem& item = items[i];
    if (!amounts.version->records(item)) continue;
    if (item.counter == nullptr)
      numbers[item.field.first] = figureOf(item, amounts, boxes);
    else
      std::ranges::copy(numbersOf(item, amounts.lines[static_cast<qsizetype>(i)]),
                        numbers.begin() + item.field.first);
  }
  QString record = QString::fromUtf16(amounts.version->mark);
  record.reserve(200);
  for (const qint64 number : std::span(numbers).subspan(1))
    record.append(u',').append(QString::number(number));
  return record;
}

qint64 AmountRecord::number(int field) const {
  return field < fields.size() ? text::intOf(fields.at(field)) : 0;
}

std::optional<AmountRecord> readAmountRecord(const QString& record, Kind kind, EraTable table) {
  QStringList fields = record.split(u',');
  for (const Era& era : table) {
    const KindRules& rules = era.of(kind);
    for (const RecordVersion& version : rules.versions)
      if (fields[0] == version.mark && fields.size() == lastField(rules.items, version) + 1)
        return AmountRecord{&rules, &version, std::move(fields)};
  }
  return std::nullopt;
}

QStringList amountRecordFields(const QString& record, EraTable table) {
  for (const Kind kind : {Kind::Acupuncture, Kind::Massage})
    if (auto read = readAmountRecord(record, kind, table)) return std::move(read->fields);
  return {};
}

}  // namespace claims

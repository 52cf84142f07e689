#include "printing/core/amount_boxes.h"

#include "platform/text/number.h"

namespace printing {

namespace {

using claims::AmountItem;

void showBox(ReportFields& fields, int box, const QString& text) {
  if (box != 0) fields.show(QStringLiteral("dain") + QString::number(box), text);
}

/// Puts the fields of an item into the boxes.
void putItem(ReportFields& fields, const claims::AmountRecord& record, const AmountItem& item,
             const claims::AmountBoxes& boxes) {
  using Parts = claims::RecordFields::Parts;
  const Parts parts = item.field.parts;
  const int first = item.field.first;
  const int amount = parts == Parts::Line ? first + 2 : first;
  const int count = parts == Parts::Line ? first + 1 : first;
  showBox(fields, boxes.unit, text::thousands(record.number(first)));
  showBox(fields, boxes.count, text::thousands(record.number(count)));
  showBox(fields, boxes.amount, text::thousands(record.number(amount)));
}

/// Whether the other item of the item's cell has no count, so that this one goes to the middle.
bool aloneInCell(const claims::AmountRecord& record, const AmountItem& item) {
  if (item.boxes.alone == 0) return false;
  return std::ranges::none_of(record.rules->items, [&](const AmountItem& other) {
    return &other != &item && other.boxes.alone == item.boxes.alone && record.counted(other);
  });
}

/// The recorded items: single boxes, then lines that share a cell, then the other lines, by their fields.
std::vector<const AmountItem*> inPrintOrder(const claims::AmountRecord& record) {
  std::vector<const AmountItem*> items;
  for (const AmountItem& item : record.rules->items)
    if (record.version->records(item)) items.push_back(&item);
  std::ranges::sort(items, {}, [](const AmountItem* item) {
    const int group = !item->boxes.wholeLine() ? 0 : item->boxes.alone != 0 ? 1 : 2;
    return std::pair(group, item->field.first);
  });
  return items;
}

}  // namespace

claims::Kind recordKind(PrintKind kind) {
  return kind == PrintKind::Massage ? claims::Kind::Massage : claims::Kind::Acupuncture;
}

void printRecord(ReportFields& fields, const claims::AmountRecord& record) {
  for (const AmountItem* item : inPrintOrder(record)) {
    if (item->boxes.wholeLine() && !record.counted(*item)) continue;
    const bool alone = aloneInCell(record, *item);
    putItem(fields, record, *item, alone ? claims::lineBoxes(item->boxes.alone) : item->boxes);
  }
}

void showShare(ReportFields& fields, const claims::KindRules& rules, const QString& text) {
  for (const AmountItem& item : rules.items)
    if (item.figure == claims::Figure::Share) showBox(fields, item.boxes.amount, text);
}

}  // namespace printing

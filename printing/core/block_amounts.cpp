#include "claims/core/amount_record.h"
#include "platform/text/number.h"
#include "printing/core/amount_boxes.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

/// The boxes of one page, fed from the split record.
class Boxes {
 public:
  Boxes(Sheet& sheet, const AmountLayout& layout)
      : m_fields(sheet.fields),
        m_layout(layout),
        m_record(claims::amountRecordFields(sheet.value(layout.record))) {}

  bool empty() const { return m_record.isEmpty(); }
  bool counted(int triple) const { return number(triple + 1) != 0; }
  void put(int field) { put(field, boxOf(m_layout, field)); }
  void putTriple(int triple) {
    for (int i = 0; i < 3; ++i) put(triple + i);
  }
  void putTripleAt(int triple, int firstBox) {
    for (int i = 0; i < 3; ++i) put(triple + i, firstBox + i);
  }

 private:
  qint64 number(int field) const { return field < m_record.size() ? text::intOf(m_record.at(field)) : 0; }
  /// A zero prints nothing.
  void put(int field, int box) {
    m_fields.show(QStringLiteral("dain") + QString::number(box), text::thousands(number(field)));
  }

  ReportFields& m_fields;
  const AmountLayout& m_layout;
  const QStringList m_record;
};

void putCell(Boxes& boxes, const AmountCell& cell) {
  const bool upper = boxes.counted(cell.upper), lower = boxes.counted(cell.lower);
  if (upper && lower) {
    boxes.putTriple(cell.upper);
    boxes.putTriple(cell.lower);
  } else if (upper || lower) {
    boxes.putTripleAt(upper ? cell.upper : cell.lower, cell.middleBox);
  }
}

}  // namespace

void fillAmountBoxes(Sheet& sheet) {
  if (!sheet.settings.on(Setting::Amounts)) return;
  const AmountLayout& layout = amountLayout(sheet.source.kind);
  Boxes boxes(sheet, layout);
  if (boxes.empty()) return;
  for (const int field : layout.singles) boxes.put(field);
  for (const AmountCell& cell : layout.cells) putCell(boxes, cell);
  for (const AmountTriple triple : layout.triples)
    if (boxes.counted(triple)) boxes.putTriple(triple);
}

}  // namespace printing

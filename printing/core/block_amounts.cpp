#include "printing/core/amount_boxes.h"
#include "printing/core/claim_blocks.h"

namespace printing {

void amountBoxes(Sheet& sheet) {
  if (!sheet.settings.on(Setting::Amounts)) return;
  const claims::Kind kind = recordKind(sheet.source.kind);
  const QString text = sheet.value(claims::recordColumn(kind).text());
  if (const auto record = claims::readAmountRecord(text, kind, sheet.eras))
    fillAmountBoxes(sheet.fields, *record);
}

}  // namespace printing

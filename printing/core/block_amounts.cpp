#include "printing/core/amount_boxes.h"
#include "printing/core/claim_blocks.h"

namespace printing {

void fillAmountBoxes(Sheet& sheet) {
  if (!sheet.settings.on(Setting::Amounts)) return;
  const claims::Kind kind = recordKind(sheet.source.kind);
  const QString text = sheet.value(claims::recordColumn(kind));
  if (const auto record = claims::readAmountRecord(text, kind, sheet.eras))
    printRecord(sheet.fields, *record);
}

}  // namespace printing

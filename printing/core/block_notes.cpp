#include "claims/core/generic_columns.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr int kFirstItem = 21, kLines = 6;
/// The tick 印刷する of 新摘要欄 (Text25). Where it was never set, remarks that were typed are meant to
/// print.
constexpr char16_t kNewRemarksPrinted[] = u"txtdummy25";

bool printsNewRemarks(const Sheet& sheet) {
  return !sheet.value(claims::column::kNewRemarks).isEmpty() && sheet.value(kNewRemarksPrinted) != u"0";
}

}  // namespace

void noteLines(Sheet& sheet) {
  const bool newRemarks = printsNewRemarks(sheet);
  if (newRemarks) sheet.show(u"Name700", claims::column::kNewRemarks);
  for (int line = 1; line <= kLines; ++line) {
    const QString item = QStringLiteral("Name") + QString::number(kFirstItem + line - 1);
    if (newRemarks)
      sheet.fields.hide(item);
    else
      sheet.fields.show(item, sheet.claim.get(QStringLiteral("摘要") + QString::number(line)));
  }
}

}  // namespace printing

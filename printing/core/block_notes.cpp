#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr ItemRow kLines[] = {{u"Name21", claim::remark[1]}, {u"Name22", claim::remark[2]},
                              {u"Name23", claim::remark[3]}, {u"Name24", claim::remark[4]},
                              {u"Name25", claim::remark[5]}, {u"Name26", claim::remark[6]}};
/// The tick 印刷する of 新摘要欄 (Text25). Where it was never set, remarks that were typed are meant to
/// print.

bool printsNewRemarks(const Sheet& sheet) {
  return !sheet.value(claim::newRemarks).isEmpty() && sheet.value(claim::printNewRemarks) != u"0";
}

}  // namespace

void fillNoteLines(Sheet& sheet) {
  const bool newRemarks = printsNewRemarks(sheet);
  if (!newRemarks) return sheet.copy(kLines);
  sheet.copy(u"Name700", claim::newRemarks);
  for (const ItemRow& line : kLines) sheet.hide(line.item);
}

}  // namespace printing

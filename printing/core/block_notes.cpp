#include "claims/core/generic_columns.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr ItemRow kLines[] = {{u"Name21", u"摘要1"}, {u"Name22", u"摘要2"}, {u"Name23", u"摘要3"},
                              {u"Name24", u"摘要4"}, {u"Name25", u"摘要5"}, {u"Name26", u"摘要6"}};
/// The tick 印刷する of 新摘要欄 (Text25). Where it was never set, remarks that were typed are meant to
/// print.
constexpr char16_t kNewRemarksPrinted[] = u"txtdummy25";

bool printsNewRemarks(const Sheet& sheet) {
  return !sheet.value(claims::column::kNewRemarks).isEmpty() && sheet.value(kNewRemarksPrinted) != u"0";
}

}  // namespace

void fillNoteLines(Sheet& sheet) {
  const bool newRemarks = printsNewRemarks(sheet);
  if (!newRemarks) return sheet.copy(kLines);
  sheet.copy(u"Name700", claims::column::kNewRemarks);
  for (const ItemRow& line : kLines) sheet.hide(line.item);
}

}  // namespace printing

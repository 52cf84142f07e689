#include "printing/core/claim_blocks.h"
#include "printing/core/day_marks.h"

namespace printing {

namespace {

constexpr char16_t kWalkingHard[] = u"独歩による公共交通機関を使っての外出困難";
constexpr char16_t kOtherIllness[] = u"認知症や視覚、内部、精神障害などにより独歩による外出困難";
constexpr char16_t kBoth[] = u"①と②の両方に丸をつける。";
constexpr char16_t kOther[] = u"その他";
constexpr ItemFamily kDays = u"day";
constexpr ItemSize kReasonDetail[] = {{27, u"sonota2"}, {kAnyLength, u"sonota1"}};

}  // namespace

void fillDayGrid(Sheet& sheet) {
  if (!sheet.month.month) return;
  const bool freeVisits = sheet.source.form.freeVisits;
  const int last = claims::lastDayOfMonth(sheet.month.month->year(), sheet.month.month->month());
  int days = 0;
  for (int day = 1; day <= last; ++day) {
    const QString mark = dayMark(sheet.claim, day, freeVisits);
    if (!mark.isEmpty()) ++days;
    sheet.printAt(kDays, day, mark);
  }
  if (days > 0) sheet.print(u"Name16", QString::number(days));
}

void fillVisitReason(Sheet& sheet) {
  const QString reason = sheet.value(claim::visitReason), detail = sheet.value(claim::visitReasonOther);
  const bool both = reason == kBoth;
  sheet.markIf(both || reason == kWalkingHard, u"ouri1");
  sheet.markIf(both || reason == kOtherIllness, u"ouri2");
  if (reason != kOther && !(both && !detail.isEmpty())) return;
  sheet.mark(u"ouri3");
  sheet.fit(kReasonDetail, detail);
}

}  // namespace printing

#include "claims/core/share_ticks.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

/// The five marks of the upper right box and the tick of each: 高齢8 and 高齢7 share the last printed word.
constexpr int kMarkOfTick[] = {1, 2, 3, 4, 5, 5};

void rightBox(Sheet& sheet) {
  bool wanted[6] = {};
  const claims::ShareTicks ticks = claims::shareTicksOf(sheet.claim);
  for (size_t i = 0; i < ticks.size(); ++i)
    if (ticks[i]) wanted[kMarkOfTick[i]] = true;
  if (sheet.source.form.insuredMark) wanted[1] = true;
  for (int mark = 1; mark <= 5; ++mark)
    sheet.fields.markIf(wanted[mark], QStringLiteral("hutan") + QString::number(mark));
}

}  // namespace

void share(Sheet& sheet) {
  // The paper prints what the insurer pays: 9 of ten for a share of 1割, 8 for 2割; 7 has no printed place.
  const QString word = sheet.value(u"一部負担金");
  for (int tenths = 1; tenths <= 3; ++tenths) {
    if (word != QString::number(tenths) + u'割') continue;
    sheet.fields.mark(QStringLiteral("itibu") + QString::number(tenths));
    sheet.fields.mark(QStringLiteral("Kyuufu_") + QString::number(tenths));
  }
  rightBox(sheet);
}

}  // namespace printing

#include "claims/core/share_ticks.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

/// The five marks of the upper right box and the one of each tick, in the order of kShareTicks: 高齢8 and
/// 高齢7 share the last printed word.
constexpr ItemFamily kRightBox = u"hutan";
constexpr int kMarkOfTick[] = {1, 2, 3, 4, 5, 5};
static_assert(std::size(kMarkOfTick) == std::size(claims::kShareTicks));
constexpr int kInsuredMark = kMarkOfTick[0];

/// The paper prints what the insurer pays: 9 of ten for a share of 1割, 8 for 2割; 7 has no printed place.
struct ShareRow {
  const char16_t* share;
  Item line, circle;
};
constexpr ShareRow kShares[] = {
    {u"1割", u"itibu1", u"Kyuufu_1"}, {u"2割", u"itibu2", u"Kyuufu_2"}, {u"3割", u"itibu3", u"Kyuufu_3"}};

void markRightBox(Sheet& sheet) {
  bool wanted[6] = {};
  const claims::ShareTicks ticks = claims::shareTicksOf(sheet.claim);
  for (std::size_t i = 0; i < ticks.size(); ++i)
    if (ticks[i]) wanted[kMarkOfTick[i]] = true;
  if (sheet.source.form.insuredMark) wanted[kInsuredMark] = true;
  for (int mark = kRightBox.first(); mark <= kRightBox.last(); ++mark)
    if (wanted[mark]) sheet.markAt(kRightBox, mark);
}

}  // namespace

void fillShare(Sheet& sheet) {
  for (const ShareRow& row : kShares) {
    if (sheet.value(claim::shareRate) != QStringView(row.share)) continue;
    sheet.mark(row.line);
    sheet.mark(row.circle);
  }
  markRightBox(sheet);
}

}  // namespace printing

#pragma once

#include <QString>
#include <array>

#include "claims/core/claim_record.h"

namespace claims {

/// One tick of the form's right-hand box: its word in 負担割合 and the column of its check box.
struct ShareTick {
  const char16_t* word;
  store::Column column;
};

/// In the order in which 負担割合 joins them. 三歳未満 is the older word for 就学前 and stays in the text.
inline constexpr std::array<ShareTick, 6> kShareTicks = {{{u"本人", claim::isInsured},
                                                          {u"三歳未満", claim::isPreschool},
                                                          {u"家族", claim::isFamily},
                                                          {u"高齢9", claim::elderly[9]},
                                                          {u"高齢8", claim::elderly[8]},
                                                          {u"高齢7", claim::elderly[7]}}};

/// The ticks by the order of kShareTicks.
using ShareTicks = std::array<bool, 6>;

/// "本人,高齢8,": each word with its comma; blank without ticks.
QString shareTicksText(const ShareTicks& ticks);
ShareTicks shareTicksOf(const QString& text);
/// The tick values alone.
ShareTicks tickValuesOf(const ClaimRecord& claim);
/// The ticks of a claim as read: its tick values where one is set, else the text of 負担割合.
ShareTicks shareTicksOf(const ClaimRecord& claim);

}  // namespace claims

#include "claims/core/share_ticks.h"

#include <algorithm>

#include "platform/store/tables/claims.h"

namespace claims {

QString shareTicksText(const ShareTicks& ticks) {
  QString text;
  for (size_t i = 0; i < ticks.size(); ++i)
    if (ticks[i]) text.append(QStringView(kShareTicks[i].word)).append(u',');
  return text;
}

ShareTicks shareTicksOf(const QString& text) {
  ShareTicks ticks{};
  const QStringList words = text.split(u',');
  for (size_t i = 0; i < ticks.size(); ++i) ticks[i] = words.contains(QStringView(kShareTicks[i].word));
  return ticks;
}

ShareTicks tickValuesOf(const ClaimRecord& claim) {
  ShareTicks ticks{};
  for (size_t i = 0; i < ticks.size(); ++i) ticks[i] = claim.ticked(kShareTicks[i].column);
  return ticks;
}

ShareTicks shareTicksOf(const ClaimRecord& claim) {
  const ShareTicks ticks = tickValuesOf(claim);
  const bool any = std::ranges::find(ticks, true) != ticks.end();
  return any ? ticks : shareTicksOf(claim.get(claim::shareTicks));
}

}  // namespace claims

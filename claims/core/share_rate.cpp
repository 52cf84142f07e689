#include "claims/core/share_rate.h"

namespace claims {

double shareRate(const QString& share) {
  if (share == u"1割") return 0.1;
  if (share == u"2割") return 0.2;
  if (share == u"3割") return 0.3;
  return 0;
}

}  // namespace claims

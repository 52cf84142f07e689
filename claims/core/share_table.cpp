#include "claims/core/share_table.h"

namespace claims {

std::array<ShareLine, 6> shareTable(qint64 base) {
  std::array<ShareLine, 6> lines{};
  for (size_t i = 0; i < lines.size(); ++i) {
    const int tenths = kShareTenths[i];
    const qint64 product = base * tenths;
    const qint64 rest = ((product % 10) + 10) % 10;  // below zero too, downwards is the smaller number
    const qint64 down = (product - rest) / 10;
    lines[i] = {tenths, down + (rest > 0 ? 1 : 0), down, down + (rest >= 5 ? 1 : 0)};
  }
  return lines;
}

}  // namespace claims

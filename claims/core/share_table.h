#pragma once

#include <QString>
#include <array>

namespace claims {

/// One line of the side calculator 計算式確認: a base amount times a rate in tenths, in whole yen.
struct ShareLine {
  int tenths;   ///< 1, 2, 3, 7, 8, 9: １割 to ３割 are the patient's part, ７割 to ９割 the insurer's
  qint64 up;    ///< 切り上げ
  qint64 down;  ///< 切り捨て
  qint64 nearest;  ///< 四捨五入
};

inline constexpr std::array<int, 6> kShareTenths = {1, 2, 3, 7, 8, 9};

/// The table for Int(base), reckoned in whole numbers so that no product is off by a binary fraction. It
/// serves the user's own checking and changes no claim: a claim's share is computed by amounts.h.
std::array<ShareLine, 6> shareTable(qint64 base);

}  // namespace claims

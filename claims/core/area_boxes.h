#pragma once

#include <QString>
#include <array>

#include "claims/core/claim_record.h"

namespace claims {

/// 施術回数 beside 同意部位 on the massage form, by area (躯幹, 右上肢, 左上肢, 右下肢, 左下肢) and by limb
/// (右上肢, 左上肢, 右下肢, 左下肢). A blank text is a blank box.
struct AreaBoxes {
  std::array<QString, 5> areas;  ///< Text31, stored in d3 to d7
  std::array<QString, 4> limbs;  ///< Text41, stored in d8 to d11
  bool operator==(const AreaBoxes&) const = default;
};

inline constexpr std::array kAreaColumns = {u"躯幹", u"右上肢", u"左上肢", u"右下肢", u"左下肢"};
inline constexpr std::array kLimbColumns = {u"徒手右上肢", u"徒手左上肢", u"徒手右下肢", u"徒手左下肢"};
inline constexpr std::array kAreaBoxColumns = {u"d3", u"d4", u"d5", u"d6", u"d7"};
inline constexpr std::array kLimbBoxColumns = {u"d8", u"d9", u"d10", u"d11"};

/// The boxes counted anew from the grid and the ticks (↑↓再代入, each change of the grid).
AreaBoxes areaBoxes(const ClaimRecord& claim);
/// The boxes as a stored claim keeps them in d3 to d11.
AreaBoxes storedAreaBoxes(const ClaimRecord& claim);

}  // namespace claims

#pragma once

#include <QString>
#include <array>

#include "claims/core/claim_record.h"
#include "platform/store/tables/claims.h"

namespace claims {

/// 施術回数 next to 同意部位 on the massage form, by area (躯幹, 右上肢, 左上肢, 右下肢, 左下肢) and by limb
/// (右上肢, 左上肢, 右下肢, 左下肢). A blank text is a blank box.
struct AreaBoxes {
  std::array<QString, 5> areas;  ///< Text31, stored in d3 to d7
  std::array<QString, 4> limbs;  ///< Text41, stored in d8 to d11
  bool operator==(const AreaBoxes&) const = default;
};

/// The ticks of the consent that the boxes belong to, in the same order.
inline constexpr std::array kAreaColumns = {claim::trunk, claim::rightArm, claim::leftArm, claim::rightLeg,
                                            claim::leftLeg};
inline constexpr std::array kLimbColumns = {claim::limbRightArm, claim::limbLeftArm, claim::limbRightLeg,
                                            claim::limbLeftLeg};
/// The boxes counted anew from the grid and the ticks (↑↓再代入, each change of the grid).
AreaBoxes areaBoxes(const ClaimRecord& claim);
/// The boxes as a stored claim keeps them in d3 to d11.
AreaBoxes storedAreaBoxes(const ClaimRecord& claim);

}  // namespace claims

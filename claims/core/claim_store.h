#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>

#include "claims/core/amounts.h"
#include "claims/core/area_boxes.h"
#include "claims/core/claim_record.h"

namespace claims {

/// What the rules of the store need from outside.
struct StoreContext {
  const frame::EraDates& era;
  const FeeFiles& files;
  FeeSource& fees;
  EraTable eraTable = eras();
};

/// A claim as 登録 writes it.
struct StoredClaim {
  ClaimRecord claim;
  QStringList written;  ///< names of the columns that the store writes itself, in addition to what was typed
  ClaimAmounts amounts;
  std::optional<text::Fault> calculation;  ///< the engine's fault where no amounts could be computed
};

/// The rule part of 登録, from the blank ふりがな to the record of the amounts: keys, derived kinds,
/// 負担割合, 保険順位, summary code, cleared and computed columns of both halves. The checks, trimming and
/// questions come before it and are the form's.
///
/// `boxes`: the boxes 施術回数 as the form shows them, where the user may have corrected them. Without them
/// those of the claim (claim::areaDays, claim::limbDays) stay, and are counted anew where all are blank.
StoredClaim storeClaim(const ClaimRecord& claim, const StoreContext& context,
                       const std::optional<AreaBoxes>& boxes = std::nullopt);

/// The columns of the first half that the calculation clears before it writes.
std::span<const store::Column> calculatedColumns();
/// The eight of the second half.
std::span<const store::Column> calculatedColumnsSecond();

}  // namespace claims

#pragma once

#include <span>

#include "claims/core/amount_item.h"

// The items of each era, in the order of the preview.
namespace claims {

std::span<const AmountItem> stepsItems();
std::span<const AmountItem> twoBandItems();
std::span<const AmountItem> acupunctureItems();
std::span<const AmountItem> massageItems();

/// Versions of the amount record of the two kinds.
std::span<const RecordVersion> acupunctureVersions();
std::span<const RecordVersion> massageVersions();

}  // namespace claims

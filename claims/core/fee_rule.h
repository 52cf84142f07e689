#pragma once

#include <array>
#include <initializer_list>
#include <span>

#include "claims/core/fee_edition.h"

namespace claims {

/// What one unit of an item costs: one fee, a fee for each number that the item's counter gives (areas,
/// arts ...), or one fee times that number. Without a fee an item costs nothing and is only counted.
class FeeRule {
 public:
  constexpr FeeRule() = default;
  constexpr FeeRule(Fee fee) : FeeRule({fee}) {}
  constexpr FeeRule(store::Column column) : FeeRule(feeOf(column)) {}
  /// The fees of the numbers 1, 2 ...
  constexpr FeeRule(std::initializer_list<Fee> fees) {
    for (const Fee fee : fees) m_fees.at(m_size++) = fee;
  }
  static constexpr FeeRule timesNumber(Fee fee) {
    FeeRule rule(fee);
    rule.m_timesNumber = true;
    return rule;
  }

  constexpr std::span<const Fee> fees() const { return std::span(m_fees).first(m_size); }

  /// Yen of one unit. A number beyond the fees costs what the last of them costs.
  int yen(const FeeEdition& edition, int number) const {
    if (m_size == 0) return 0;
    const size_t at = std::min(static_cast<size_t>(number), m_size) - 1;
    return edition.yen(m_fees[at]) * (m_timesNumber ? number : 1);
  }

 private:
  std::array<Fee, 5> m_fees{};
  size_t m_size = 0;
  bool m_timesNumber = false;
};

}  // namespace claims

#pragma once

#include <optional>

#include "claims/core/claim_record.h"
#include "claims/core/fee_rule.h"
#include "claims/core/rule_dates.h"
#include "claims/core/tally_steps.h"
#include "claims/core/tally_two_band.h"
#include "claims/core/tally_visits.h"
#include "platform/store/tables/claims.h"

namespace claims {

/// What an item counts in the month of a claim.
struct Counted {
  int count = 0;   ///< units to be charged
  int number = 1;  ///< areas, limbs or arts of these units, which may rule the fee and the label
};

/// A claim and its tallies; those of another era than the claim's are blank.
struct ClaimCounts {
  const ClaimRecord& claim;
  const TwoBandTally& twoBand;
  const StepVisits& steps;
  const VisitsTally& visits;
};
using Counter = Counted (*)(const ClaimCounts&);

/// What an item treats with; decides 施術科目.
enum class Art { None, Hari, Kyu, HariKyu, Massage };

/// A number of the record that is no charge.
enum class Figure { None, AreaBox, Total, Share, Claim };

/// The fields of the amount record that an item fills: unit fee, count and amount in this order, or one of
/// them alone.
struct RecordFields {
  enum Parts { Line, Count, Amount };
  int first = 0;  ///< number of the first field; 0: the item is not recorded
  Parts parts = Line;

  constexpr int size() const { return first == 0 ? 0 : parts == Line ? 3 : 1; }
};

/// Numbers of the amount boxes of the form (dain<number>); 0: no box.
struct AmountBoxes {
  int unit = 0;
  int count = 0;
  int amount = 0;
  /// First of three boxes in the middle of a cell that two items share; they are filled instead when only
  /// one of the two has a count.
  int alone = 0;

  constexpr bool wholeLine() const { return unit != 0 && count != 0 && amount != 0; }
};
/// The boxes of a line that follow each other.
constexpr AmountBoxes lineBoxes(int first, int alone = 0) { return {first, first + 1, first + 2, alone}; }

/// Columns of the claim that keep an item, before there were records.
struct AmountColumns {
  std::optional<store::Column> amount{};
  std::optional<store::Column> count{};
  Counter counter = nullptr;  ///< of the count column, where it counts something else than the charge
};

/// One item of a claim's money: a row of the tables that the computation, the preview, the record, the boxes
/// of the paper and docs/amount-record.md read.
struct AmountItem {
  const char16_t* label = nullptr;  ///< of its line; %1 is the counted number
  Counter counter = nullptr;        ///< of a charge
  FeeRule fee{};
  std::optional<store::Column> tick{};  ///< column that has to be ticked
  rule::Date from = rule::kAlways;
  Art art = Art::None;
  bool charged = true;           ///< has a line of its own and is part of the total
  Figure figure = Figure::None;  ///< of an item that is no charge
  int areaBox = 0;               ///< of Figure::AreaBox: 0 to 4 areas, 5 to 8 limbs
  RecordFields field{};
  AmountBoxes boxes{};
  AmountColumns columns{};
};

/// A version of the amount record: its fields are those of the items that began by its first month.
struct RecordVersion {
  const char16_t* mark;  ///< field 0 of the record
  rule::Date from;

  constexpr bool records(const AmountItem& item) const { return item.field.first != 0 && item.from <= from; }
};

}  // namespace claims

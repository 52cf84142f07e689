#pragma once

#include <algorithm>
#include <span>
#include <string_view>

#include "claims/core/amount_item.h"

// What every table of amount items has to keep; asserted at compile time next to each table.
namespace claims {

using AmountItems = std::span<const AmountItem>;
using RecordVersions = std::span<const RecordVersion>;

/// The highest field of a version.
constexpr int lastField(AmountItems items, const RecordVersion& version) {
  int last = 0;
  for (const AmountItem& item : items)
    if (version.records(item)) last = std::max(last, item.field.first + item.field.size() - 1);
  return last;
}

/// Whether a column is one of a claim's.
constexpr bool isOfClaim(const std::optional<store::Column>& column) {
  return !column || &column->table() == &claim::firstHalf || &column->table() == &claim::secondHalf;
}

/// Each item is either a charge or a figure, is labelled, names columns of a claim, and has no box that its
/// record fields cannot fill.
constexpr bool itemsAreComplete(AmountItems items) {
  for (const AmountItem& item : items) {
    const AmountBoxes& boxes = item.boxes;
    const bool anyBox = boxes.unit != 0 || boxes.count != 0 || boxes.amount != 0;
    if (item.label == nullptr || (item.counter != nullptr) == (item.figure != Figure::None)) return false;
    if (item.counter == nullptr && !item.fee.fees().empty()) return false;
    if (item.counter != nullptr && item.charged && item.fee.fees().empty()) return false;
    for (const Fee fee : item.fee.fees())
      if (static_cast<size_t>(fee) >= kFees.size()) return false;
    if (!isOfClaim(item.tick) || !isOfClaim(item.columns.amount) || !isOfClaim(item.columns.count))
      return false;
    if (anyBox && item.field.first == 0) return false;
    if (item.field.parts != RecordFields::Line && boxes.unit != 0) return false;
    if (item.field.parts == RecordFields::Amount && boxes.count != 0) return false;
    if (item.field.parts == RecordFields::Count && boxes.amount != 0) return false;
    if (boxes.alone != 0 && !boxes.wholeLine()) return false;
  }
  return true;
}

/// In every version the fields are 1, 2 ... without a gap, each filled by one item.
constexpr bool fieldsAreContiguous(AmountItems items, RecordVersions versions) {
  for (const RecordVersion& version : versions) {
    const int last = lastField(items, version);
    for (int field = 1; field <= last; ++field) {
      int fillers = 0;
      for (const AmountItem& item : items)
        if (version.records(item) && field >= item.field.first &&
            field < item.field.first + item.field.size())
          ++fillers;
      if (fillers != 1) return false;
    }
  }
  return true;
}

/// Versions follow each other under marks of their own, and an item that begins later than the first version
/// begins with a version.
constexpr bool versionsAreInOrder(AmountItems items, RecordVersions versions) {
  for (size_t i = 1; i < versions.size(); ++i) {
    if (versions[i].from <= versions[i - 1].from) return false;
    for (size_t other = 0; other < i; ++other)
      if (std::u16string_view(versions[i].mark) == versions[other].mark) return false;
  }
  for (const AmountItem& item : items) {
    if (item.field.first == 0) continue;
    const bool begins = std::ranges::any_of(versions, [&](const RecordVersion& version) {
      return item.from == version.from || (&version == versions.data() && item.from < version.from);
    });
    if (!begins) return false;
  }
  return true;
}

/// No box is filled by two items, but for the middle boxes of a cell, which exactly two items share.
constexpr bool boxesAreUnique(AmountItems items) {
  const auto uses = [&](int box) {
    int count = 0;
    for (const AmountItem& item : items)
      count += (item.boxes.unit == box) + (item.boxes.count == box) + (item.boxes.amount == box);
    return count;
  };
  const auto sharers = [&](int box) {
    return std::ranges::count_if(items, [&](const AmountItem& item) {
      return item.boxes.alone != 0 && box >= item.boxes.alone && box < item.boxes.alone + 3;
    });
  };
  for (const AmountItem& item : items) {
    for (const int box : {item.boxes.unit, item.boxes.count, item.boxes.amount})
      if (box != 0 && (uses(box) != 1 || sharers(box) != 0)) return false;
    if (item.boxes.alone == 0) continue;
    for (int box = item.boxes.alone; box < item.boxes.alone + 3; ++box)
      if (uses(box) != 0 || sharers(box) != 2) return false;
  }
  return true;
}

constexpr bool isSound(AmountItems items, RecordVersions versions) {
  return itemsAreComplete(items) && fieldsAreContiguous(items, versions) &&
         versionsAreInOrder(items, versions) && boxesAreUnique(items);
}

}  // namespace claims

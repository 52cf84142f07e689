#pragma once

#include <span>

#include "platform/store/tables/claims.h"
#include "printing/core/print_source.h"

namespace printing {

/// One field of the amount record and the amount box it goes to.
struct AmountBox {
  int field;
  int box;  ///< dain<box>
};

/// A line of the form with two rows in one cell: the first fields of its triples (unit fee, count, amount)
/// and the first box of the third placement, in the middle of the cell, that shows instead when only one
/// row has a count.
struct AmountCell {
  int upper;
  int lower;
  int middleBox;
};

/// A line with one row: the first field of its triple.
using AmountTriple = int;

/// Where the amount record of a kind of treatment goes on its form.
struct AmountLayout {
  store::Column record;
  std::span<const AmountCell> cells;
  std::span<const AmountTriple> triples;
  std::span<const int> singles;        ///< fields that stand alone
  std::span<const AmountBox> crossed;  ///< boxes whose number is not their field's
  int shareBox;                        ///< 一部負担金
};

const AmountLayout& amountLayout(PrintKind kind);
/// Number of the amount box of a field.
int boxOf(const AmountLayout& layout, int field);

}  // namespace printing

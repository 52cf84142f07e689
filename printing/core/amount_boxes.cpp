#include "printing/core/amount_boxes.h"

namespace printing {

namespace {

constexpr AmountCell kHariCells[] = {{4, 7, 51}, {10, 13, 54}, {16, 19, 57}, {22, 25, 60}, {28, 31, 63}};
constexpr AmountTriple kHariTriples[] = {34, 37, 40};
constexpr int kHariSingles[] = {1, 2, 3, 45, 46, 47, 48};
// Kept: the unit fees of the first visit line have always been crossed in their names.
constexpr AmountBox kHariCrossed[] = {{10, 13}, {13, 10}};

constexpr AmountCell kMassageCells[] = {{10, 13, 71}, {16, 19, 74}, {22, 25, 77}, {28, 31, 80}, {34, 37, 83}};
constexpr AmountTriple kMassageTriples[] = {40, 43, 46, 49, 52};
constexpr int kMassageSingles[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 57, 58, 59, 60};

constexpr AmountLayout kHari = {claim::hariRecord, kHariCells, kHariTriples, kHariSingles, kHariCrossed, 47};
constexpr AmountLayout kMassage = {
    claim::massageRecord, kMassageCells, kMassageTriples, kMassageSingles, {}, 59};

}  // namespace

const AmountLayout& amountLayout(PrintKind kind) { return kind == PrintKind::Acupuncture ? kHari : kMassage; }

int boxOf(const AmountLayout& layout, int field) {
  for (const AmountBox& crossed : layout.crossed)
    if (crossed.field == field) return crossed.box;
  return field;
}

}  // namespace printing

#include "claims/core/area_boxes.h"

#include "claims/core/kinds.h"

namespace claims {
namespace {

QString countText(int count) { return count == 0 ? QString() : QString::number(count); }

template <size_t N>
void fill(std::array<QString, N>& boxes, const std::array<store::Column, N>& ticks, const ClaimRecord& claim,
          int days) {
  for (size_t i = 0; i < N; ++i)
    if (claim.ticked(ticks[i])) boxes[i] = countText(days);
}

template <size_t N>
void read(std::array<QString, N>& boxes, const store::Series& columns, const ClaimRecord& claim) {
  for (size_t i = 0; i < N; ++i) boxes[i] = claim.get(columns[columns.first() + static_cast<int>(i)]);
}

}  // namespace

AreaBoxes areaBoxes(const ClaimRecord& claim) {
  AreaBoxes boxes;
  if (kindOf(claim.get(claim::treatmentKind)) == Kind::Acupuncture) return boxes;
  int treatedDays = 0, limbDays = 0;
  for (int day = 1; day <= 31; ++day) {
    const QString code = claim.code(day);
    if (code.isEmpty()) continue;
    ++treatedDays;
    if (code.contains(u'h')) ++limbDays;
  }
  fill(boxes.areas, kAreaColumns, claim, treatedDays);
  fill(boxes.limbs, kLimbColumns, claim, limbDays);
  return boxes;
}

AreaBoxes storedAreaBoxes(const ClaimRecord& claim) {
  AreaBoxes boxes;
  read(boxes.areas, claim::areaDays, claim);
  read(boxes.limbs, claim::limbDays, claim);
  return boxes;
}

}  // namespace claims

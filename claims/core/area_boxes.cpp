#include "claims/core/area_boxes.h"

#include "claims/core/kinds.h"

namespace claims {
namespace {

QString countText(int count) { return count == 0 ? QString() : QString::number(count); }

template <size_t N>
void fill(std::array<QString, N>& boxes, const std::array<const char16_t*, N>& ticks,
          const ClaimRecord& claim, int days) {
  for (size_t i = 0; i < N; ++i)
    if (claim.ticked(columnName(ticks[i]))) boxes[i] = countText(days);
}

template <size_t N>
void read(std::array<QString, N>& boxes, const std::array<const char16_t*, N>& columns,
          const ClaimRecord& claim) {
  for (size_t i = 0; i < N; ++i) boxes[i] = claim.get(columnName(columns[i]));
}

}  // namespace

AreaBoxes areaBoxes(const ClaimRecord& claim) {
  AreaBoxes boxes;
  if (kindOf(claim.get(QStringLiteral("施術内容"))) == Kind::Acupuncture) return boxes;
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
  read(boxes.areas, kAreaBoxColumns, claim);
  read(boxes.limbs, kLimbBoxColumns, claim);
  return boxes;
}

}  // namespace claims

#pragma once

#include <QString>

#include "claims/core/claim_record.h"

namespace claims {

/// The previews of 施術料金計算, by era and kind of treatment.
enum class Preview {
  None,
  StepsAcupuncture,
  StepsMassage,
  TwoBandAcupuncture,
  TwoBandMassage,
  VisitsAcupuncture,
  VisitsMassage
};

/// A preview and the name of its screen.
struct PreviewRow {
  Preview preview;
  const char16_t* screen;
};

/// All previews. 施術料金2108A is the screen's own name, not a slip of ours.
inline constexpr PreviewRow kPreviews[] = {
    {Preview::StepsAcupuncture, u"施術料金1"},       {Preview::StepsMassage, u"施術料金2"},
    {Preview::TwoBandAcupuncture, u"施術料金2018H"}, {Preview::TwoBandMassage, u"施術料金2108A"},
    {Preview::VisitsAcupuncture, u"施術料金2024H"},  {Preview::VisitsMassage, u"施術料金2024A"},
};

/// The screen of a preview; null for none.
inline QString previewScreen(Preview preview) {
  for (const PreviewRow& row : kPreviews)
    if (row.preview == preview) return columnName(row.screen);
  return {};
}

}  // namespace claims

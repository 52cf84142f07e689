#pragma once

#include <QString>

#include "frame/core/routes.h"

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
  screen::ScreenName screen;
};

/// All previews.
inline constexpr PreviewRow kPreviews[] = {
    {Preview::StepsAcupuncture, routes::FeesSteps1::screen},
    {Preview::StepsMassage, routes::FeesSteps2::screen},
    {Preview::TwoBandAcupuncture, routes::Fees2018Acupuncture::screen},
    {Preview::TwoBandMassage, routes::Fees2018Massage::screen},
    {Preview::VisitsAcupuncture, routes::Fees2024Acupuncture::screen},
    {Preview::VisitsMassage, routes::Fees2024Massage::screen},
};

/// The screen of a preview; null for none.
inline QString previewScreen(Preview preview) {
  for (const PreviewRow& row : kPreviews)
    if (row.preview == preview) return row.screen;
  return {};
}

}  // namespace claims

#pragma once

#include "platform/screen/navigator_impl.h"
#include "platform/screen/screen.h"

namespace office {

/// 集計総合金額 and its twin of the claim side, 集計レセ総合金額: six sums, said when it opens and read
/// again by Tab. A sum of nothing leaves its box empty. Where the visits of one patient are summed the first
/// box counts treatments, and there is no sixth.
class TotalsScreen : public screen::Screen {
 public:
  using Screen::Screen;

  void opened(const screen::Request& request) override;
  QStringList openingTexts() const override;
  void finish() { closeNow(); }
};

/// Lists both screens.
void addTotalsScreens(screen::ScreenRegistry& registry);

}  // namespace office

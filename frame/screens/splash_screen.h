#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// The first window. A key or a click goes on to the main menu at once.
class SplashScreen : public screen::Screen {
 public:
  SplashScreen(screen::Services& services, RunState& run);

  QStringList openingTexts() const override { return {}; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  RunState& m_run;
};

}  // namespace frame

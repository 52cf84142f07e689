#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// 初期設定: all that the program knows of the practice itself. No field is required and no format is tested.
class ProfileScreen : public screen::Screen {
 public:
  ProfileScreen(screen::Services& services, RunState& run);

  void onLoad() override;

  void save();
  void cancel();
  /// The practice bills acupuncture only, or massage as well: one tick clears the other.
  void chooseKind(int index);

 private:
  void showProfile();
  void showPrefecture();
  RunState& m_run;
};

}  // namespace frame

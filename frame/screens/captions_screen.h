#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// 項目テキストの変更: the practice's own captions for five fields of the patient and chart screens.
class CaptionsScreen : public screen::Screen {
 public:
  CaptionsScreen(screen::Services& services, RunState& run);

  void onLoad() override;

  void save();
  void cancel();

 private:
  RunState& m_run;
};

}  // namespace frame

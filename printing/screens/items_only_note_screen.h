#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace printing {

/// 項目のみ印刷の注意事項: what to mind when only the data are printed on paper that is printed already. The
/// claim form opens it whenever the tick gets set, until the user silences it for this run.
class ItemsOnlyNoteScreen : public screen::Screen {
 public:
  ItemsOnlyNoteScreen(screen::Services& services, frame::RunState& run);

  void onLoad() override;

  void speakNote();
  void rememberTick();
  void finish();

 private:
  frame::RunState& m_run;
};

}  // namespace printing

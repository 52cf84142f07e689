#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// The text help chapter by chapter, for a system without a viewer for text files: a list of chapters, and
/// the chapter chosen in a field that is read out as a whole.
class HelpTextScreen : public screen::Screen {
 public:
  HelpTextScreen(screen::Services& services, RunState& run);

  void onLoad() override;

  void showChapter();
  void finish();

 private:
  RunState& m_run;
  QStringList m_chapters;  ///< one text a chapter, its heading first
};

}  // namespace frame

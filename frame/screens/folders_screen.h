#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace frame {

/// ＬＡＮおよびデータのフォルダ指定: where the twelve data files and folders lie.
class FoldersScreen : public screen::Screen {
 public:
  FoldersScreen(screen::Services& services, RunState& run);

  void onLoad() override;

  void browse(int index);
  void change();
  void cancel();

 private:
  RunState& m_run;
};

}  // namespace frame

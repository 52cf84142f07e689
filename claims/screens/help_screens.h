#pragma once

#include <span>

#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace claims {

/// A help screen on the entries of the day grid: all lines are spoken when it opens and on 音声で説明, one by
/// one on 次の行 and 前の行.
class HelpScreen : public screen::Screen {
 public:
  HelpScreen(const screen::ScreenRow& declaration, std::span<const char16_t* const> lines,
             screen::Services& services);

  void onLoad() override;
  QStringList openingTexts() const override;
  void speakAll();
  void speakNext();
  void speakPrevious();
  void closeHelp();

 private:
  QStringList lines() const;
  void speakLine(int line);
  std::span<const char16_t* const> m_lines;
  int m_line = -1;  ///< the line heard last by itself
};

/// 記入の仕方: claims before 2020/12.
class FillingHelpScreen final : public HelpScreen {
 public:
  FillingHelpScreen(screen::Services& services, frame::RunState& run, ClaimsState& state);
};

/// 記入の仕方2018: claims of 2020/12 to 2024/09.
class FillingHelp2018Screen final : public HelpScreen {
 public:
  FillingHelp2018Screen(screen::Services& services, frame::RunState& run, ClaimsState& state);
};

/// 記入の仕方2024: claims from 2024/10.
class FillingHelp2024Screen final : public HelpScreen {
 public:
  FillingHelp2024Screen(screen::Services& services, frame::RunState& run, ClaimsState& state);
};

}  // namespace claims

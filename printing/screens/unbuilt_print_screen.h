#pragma once

#include "platform/screen/screen.h"

namespace printing {

/// A printing screen whose papers this program does not hold yet. It says so, instead of printing a claim
/// on a form that is not its own.
class UnbuiltPrintScreen : public screen::Screen {
 public:
  UnbuiltPrintScreen(const screen::ScreenRow& declaration, screen::Services& services);

  /// All screens of this kind.
  static std::span<const screen::ScreenRow> declarations();

  void finish();
};

}  // namespace printing

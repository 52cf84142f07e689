#pragma once

#include <span>

#include "platform/screen/rows.h"
#include "printing/core/print_screens.h"

namespace printing {

/// A printing screen as it is declared; its rows name the options of print_screens.h and the ticks of
/// print_ticks.h that it offers.
struct PrintForm {
  PrintScreen screen;
  screen::ScreenRow declaration;
};

/// The group of option buttons that holds the editions, on every printing screen.
inline constexpr char16_t kEditionGroup[] = u"Frame1";

/// The printing screens whose papers this program holds.
std::span<const PrintForm> claimPrintForms();
/// The others: each says that its papers are not there yet.
std::span<const PrintForm> unbuiltPrintForms();

}  // namespace printing

#pragma once

#include "platform/screen/screen.h"
#include "printing/screens/print_forms.h"

namespace printing {

/// A printing screen whose papers this program does not hold yet. It says so, instead of printing a claim on
/// a form that is not its own.
class UnbuiltPrintScreen : public screen::Screen {
 public:
  UnbuiltPrintScreen(screen::Services& services, const PrintForm& form)
      : Screen(form.declaration, services) {}

  void finish() { navigator().unload(objectName()); }
};

}  // namespace printing

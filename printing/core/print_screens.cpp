#include "printing/core/print_screens.h"

namespace printing {

std::optional<PrintScreen> printScreenNamed(const QString& name) {
  for (const PrintScreenRow& row : kPrintScreens)
    if (name == row.name.text()) return row.screen;
  return std::nullopt;
}

Edition editionNamed(PrintScreen screen, const QString& control) {
  for (const EditionOption& option : rowOf(screen).editions)
    if (control == QStringView(option.control)) return option.edition;
  return control.isEmpty() ? Edition::None : Edition::Unknown;
}

}  // namespace printing

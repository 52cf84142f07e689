#pragma once

#include <QString>
#include <optional>

#include "printing/core/print_screens.h"
#include "printing/core/print_source.h"

namespace printing {

/// A chosen template.
struct TemplateChoice {
  QString fileName;  ///< "HARI_900_R.PRP"
  bool built;        ///< this program holds the template and its mapping
};

/// The template by screen, edition, ticks, prefecture and association; nothing where no row fits (no edition
/// chosen). The claim itself is not looked at.
std::optional<TemplateChoice> chooseTemplate(PrintScreen screen, const PrintSource& source);

}  // namespace printing

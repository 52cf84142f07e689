#pragma once

#include <initializer_list>
#include <utility>

#include "frame/core/era_date.h"
#include "printing/core/claim_form_900.h"
#include "printing/tests/core/spy_engine.h"

namespace printing::tests {

using Columns = std::initializer_list<std::pair<const char16_t*, const char16_t*>>;

/// A claim to be filled into the spy, and what came out.
class Filled {
 public:
  explicit Filled(PrintKind kind = PrintKind::Acupuncture) { source.kind = kind; }

  Filled& set(Columns columns) {
    for (const auto& [column, text] : columns)
      source.claim.setNamed(QString::fromUtf16(column), QString::fromUtf16(text));
    return *this;
  }
  /// The amount record with these fields; all others are 0.
  Filled& record(std::initializer_list<std::pair<int, int>> fields);

  /// Fills anew and gives the spy.
  SpyEngine& fill();
  QString operator[](const char* item) { return fill().printed(QString::fromUtf8(item)); }
  bool marked(const char* item) { return fill().marked(QString::fromUtf8(item)); }

  PrintSource source;
  SpyEngine engine;
  frame::EraCapability capability = frame::EraCapability::Supported;

 private:
  text::FixedClock m_clock{QDate(2024, 11, 5)};
};

/// Claims with every block of the form filled; all names are made up.
Filled fullAcupuncture();
Filled fullMassage();

}  // namespace printing::tests

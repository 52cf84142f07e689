#pragma once

#include <QAccessible>

namespace screen {

/// Switches the accessibility bridge on for this program. Before the QApplication is made: a screen reader
/// that starts later than the program would otherwise never see it.
void enableAccessibility();

/// While it lives, nothing is reported to screen readers: for changes to parts that only the eye and the
/// mouse use.
class UntoldChange {
 public:
  UntoldChange();
  ~UntoldChange();
  UntoldChange(const UntoldChange&) = delete;
  UntoldChange& operator=(const UntoldChange&) = delete;

 private:
  QAccessible::UpdateHandler m_handler;
};

}  // namespace screen

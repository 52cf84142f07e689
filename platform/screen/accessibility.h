#pragma once

namespace screen {

/// Switches the accessibility bridge on for this program. Before the QApplication is made: a screen reader
/// that starts later than the program would otherwise never see it.
void enableAccessibility();

}  // namespace screen

#pragma once

#include <QString>
#include <span>

namespace program {

/// A screen and the ASCII stem of its transcript files: tests/speech/<set>/<stem>.txt.
struct ScreenFile {
  const char16_t* screen;
  const char* stem;
};

/// One row for every registered screen, in the order of the stems.
std::span<const ScreenFile> screenFiles();

/// The file name of a screen's transcript ("patient.txt"), with `way` after the stem; empty for a screen
/// without a row.
QString transcriptFile(const QString& screen, const QString& way = {});

}  // namespace program

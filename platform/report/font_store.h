#pragma once

#include <map>

#include "platform/report/font.h"
#include "platform/report/form.h"

namespace report {

/// The fonts of the forms, opened once a run, and fonts that fill their gaps.
class FontStore {
 public:
  FontStore();

  /// Never nullptr on a machine with any font at all; without the forms' font the nearest one serves.
  Font* font(Typeface face);
  /// A font that has the character: the face itself, its sister, or any font of the machine.
  /// The face itself if none has it: its empty box is drawn, the text remains in the document.
  Font* fontFor(Typeface face, char32_t character);

 private:
  Font* open(const QString& path, int faceNumber);
  Font* search(Typeface face, char32_t character);

  FontLibrary m_library;
  std::map<std::pair<QString, int>, std::unique_ptr<Font>> m_opened;
  std::map<Typeface, Font*> m_faces;
  std::map<std::pair<Typeface, char32_t>, Font*> m_found;
};

/// Whether the font that the forms are set in is installed. The start of the program asks this.
bool fontInstalled();

}  // namespace report

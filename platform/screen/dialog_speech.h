#pragma once

class QDialog;

namespace voice {
class VoiceGuide;
}

namespace screen {

/// Lets a dialog of the toolkit (file picker, printer) speak as the screens do: its title when it opens, then
/// each control by its accessible name and value as the focus reaches it, and each entry of a list as the
/// arrow keys reach it.
void letSpeak(QDialog& dialog, voice::VoiceGuide& voice);

}  // namespace screen

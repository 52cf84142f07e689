#pragma once

namespace voice {

/// A socket connected to the speech service at the address that this user's settings name, or -1.
int connectToSpeechService();

/// Has the service of this user started; it goes into the background by itself.
void startSpeechService();

}  // namespace voice

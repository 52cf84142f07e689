#pragma once

#include <memory>
#include <thread>

#include "platform/voice/voice_channel.h"

namespace voice {

/// The voice control on the system's speech service.
///
/// Every call returns at once: a worker thread reads a queue and speaks with the service, starts it if none
/// runs, and finds it again after it went away. The queue holds what is still to be said since the last
/// stop, so that after a silence the newest text is heard and not a backlog. Voices that cannot read kanji
/// are given the kana reading.
class SpeechDispatcherChannel final : public VoiceControl {
 public:
  SpeechDispatcherChannel();
  /// Hands over what is queued, but waits no longer than a moment for a service that does not answer.
  ~SpeechDispatcherChannel() override;
  SpeechDispatcherChannel(const SpeechDispatcherChannel&) = delete;
  SpeechDispatcherChannel& operator=(const SpeechDispatcherChannel&) = delete;

  /// Cuts what is being said and drops what is queued.
  void VoiceStop() override;
  void VoiceSay(const QString& text) override;
  /// The service starts each text by itself; nothing remains to be done.
  void VoiceGo() override {}

 private:
  struct Shared;
  std::shared_ptr<Shared> m_shared;  ///< outlives this if the worker hangs in the service
  std::thread m_worker;
};

}  // namespace voice

#include "platform/voice/speech_dispatcher_channel.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>

#include "platform/voice/kana_reader.h"
#include "platform/voice/speech_connection.h"
#include "platform/voice/speech_text.h"

namespace voice {

using namespace std::chrono_literals;

namespace {

constexpr auto kRetry = 500ms;         // how soon a lost service is looked for again while texts wait
constexpr auto kStartAgain = 30s;      // how soon the service is started again after a vain start
constexpr auto kFarewell = 300ms;      // how long the end of the program waits for the worker
constexpr size_t kLongestQueue = 100;  // texts; older ones are of no use to anybody

/// What the worker takes from the queue in one go: a cut that comes first, then a text.
struct Task {
  bool cut = false;
  std::optional<QString> text;
};

/// Opens connections, and has the service started from time to time if that is up to the program.
class ServiceDoor {
 public:
  std::unique_ptr<SpeechConnection> open() {
    const auto now = std::chrono::steady_clock::now();
    const bool start = m_mayStart && now >= m_nextStart;
    if (start) m_nextStart = now + kStartAgain;
    return SpeechConnection::open(start);
  }

 private:
  /// Where an address is given, the service there is somebody else's to start.
  const bool m_mayStart = qEnvironmentVariableIsEmpty("SPEECHD_ADDRESS");
  std::chrono::steady_clock::time_point m_nextStart;
};

}  // namespace

/// The queue between the screens and the worker.
struct SpeechDispatcherChannel::Shared {
  std::mutex mutex;
  std::condition_variable changed;
  std::deque<QString> texts;
  bool cut = false;
  unsigned cuts = 0;  ///< counts the stops, to know whether a text in hand is still wanted
  bool ending = false;
  bool ended = false;

  bool hasWork() const { return cut || !texts.empty(); }

  void stop() {
    const std::lock_guard lock(mutex);
    texts.clear();
    cut = true;
    ++cuts;
    changed.notify_all();
  }

  void say(const QString& text) {
    const std::lock_guard lock(mutex);
    if (texts.size() == kLongestQueue) texts.pop_front();
    texts.push_back(text);
    changed.notify_all();
  }

  void run();
  std::optional<Task> next(unsigned& cutsSeen);
  void putBack(const QString& text, unsigned cutsSeen);
  void waitForService(unsigned cutsSeen);
};

std::optional<Task> SpeechDispatcherChannel::Shared::next(unsigned& cutsSeen) {
  std::unique_lock lock(mutex);
  changed.wait(lock, [this] { return hasWork() || ending; });
  if (!hasWork()) return std::nullopt;
  Task task{std::exchange(cut, false), std::nullopt};
  if (!texts.empty()) {
    task.text = texts.front();
    texts.pop_front();
  }
  cutsSeen = cuts;
  return task;
}

/// A text that the service did not take waits again, unless it was stopped meanwhile.
void SpeechDispatcherChannel::Shared::putBack(const QString& text, unsigned cutsSeen) {
  const std::lock_guard lock(mutex);
  if (cuts == cutsSeen) texts.push_front(text);
}

/// Waits a while before the service is looked for again, or until something else is to be said.
void SpeechDispatcherChannel::Shared::waitForService(unsigned cutsSeen) {
  std::unique_lock lock(mutex);
  changed.wait_for(lock, kRetry, [&] { return ending || cuts != cutsSeen; });
  if (ending) texts.clear();
}

void SpeechDispatcherChannel::Shared::run() {
  const KanaReader reader;
  ServiceDoor door;
  std::unique_ptr<SpeechConnection> connection;
  unsigned cutsSeen = 0;
  while (const auto task = next(cutsSeen)) {
    if (connection && task->cut && !connection->cancel()) connection.reset();
    if (!task->text) continue;
    const bool fresh = !connection;
    if (fresh) connection = door.open();
    if (connection &&
        connection->say(connection->readsKanji() ? textWithPauses(*task->text) : reader.read(*task->text)))
      continue;
    connection.reset();
    putBack(*task->text, cutsSeen);
    if (fresh) waitForService(cutsSeen);  // a service that answered before is tried anew at once
  }
  const std::lock_guard lock(mutex);
  ended = true;
  changed.notify_all();
}

SpeechDispatcherChannel::SpeechDispatcherChannel() : m_shared(std::make_shared<Shared>()) {
  m_worker = std::thread([shared = m_shared] { shared->run(); });
}

SpeechDispatcherChannel::~SpeechDispatcherChannel() {
  std::unique_lock lock(m_shared->mutex);
  m_shared->ending = true;
  m_shared->changed.notify_all();
  const bool ended = m_shared->changed.wait_for(lock, kFarewell, [this] { return m_shared->ended; });
  lock.unlock();
  if (ended)
    m_worker.join();
  else
    m_worker.detach();
}

void SpeechDispatcherChannel::VoiceStop() { m_shared->stop(); }

void SpeechDispatcherChannel::VoiceSay(const QString& text) { m_shared->say(text); }

}  // namespace voice

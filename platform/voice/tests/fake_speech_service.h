#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

namespace voice {

/// A speech service that keeps what it is told instead of speaking it: the few commands of the protocol
/// that a client needs, on a socket of the file system.
class FakeSpeechService {
 public:
  enum class Manner { Answers, Hangs };

  FakeSpeechService(const QString& socketPath, Manner manner = Manner::Answers,
                    const QByteArray& outputModule = "fake");
  ~FakeSpeechService();

  /// "CANCEL" and "SPEAK text", in the order in which they came.
  QStringList events() const;
  /// Waits until the events satisfy `wanted`; false when they never do.
  bool waitFor(const std::function<bool(const QStringList&)>& wanted) const;
  bool waitForSpoken(const QString& text) const;
  /// Values of SET SELF by name, the latest.
  QByteArray priority() const;
  QByteArray language() const;
  int connections() const { return m_connections; }

 private:
  void accept();
  void serve(int client);
  QByteArray answer(const QByteArray& line);
  void add(const QString& event);

  const Manner m_manner;
  const QByteArray m_module;
  int m_server = -1;
  std::atomic<int> m_connections = 0;
  mutable std::mutex m_mutex;
  mutable std::condition_variable m_changed;
  QStringList m_events;
  QByteArray m_priority, m_language;
  std::set<int> m_clients;
  std::vector<std::thread> m_threads;
};

}  // namespace voice

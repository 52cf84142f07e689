#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>

namespace voice {

/// One connection to the speech service, over its own protocol of lines (SSIP). Every call waits for the
/// service's answer, but never longer than two seconds; false means that the connection is lost. Only the
/// worker of the speech channel holds one.
///
/// The service's client library finds the address and nothing more: its calls wait forever when a service
/// hangs, and crash when one goes away between a question and its answer.
class SpeechConnection {
 public:
  /// Connects for Japanese texts; nothing if no service answers. `startService`: has the service of this
  /// user started if none is running.
  static std::unique_ptr<SpeechConnection> open(bool startService);
  ~SpeechConnection();
  SpeechConnection(const SpeechConnection&) = delete;
  SpeechConnection& operator=(const SpeechConnection&) = delete;

  bool cancel();
  bool say(const QString& text);
  /// Whether the voice reads kanji. The usual one of a fresh system does not: it spells them out as
  /// "Chinese letter", and so does every module of its family.
  bool readsKanji() const { return m_readsKanji; }

 private:
  explicit SpeechConnection(int socket) : m_socket(socket) {}
  bool greet();
  /// Sends a line and waits for the answer; its lines without the codes, nothing for a refusal.
  std::optional<QByteArray> ask(const QByteArray& line);
  std::optional<QByteArray> answer();

  int m_socket;
  QByteArray m_received;
  bool m_readsKanji = false;
};

}  // namespace voice

#include "platform/voice/tests/fake_speech_service.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstring>

namespace voice {
namespace {

/// Lines of a connection, without their ends.
class Lines {
 public:
  explicit Lines(int socket) : m_socket(socket) {}

  bool next(QByteArray& line) {
    qsizetype end;
    while ((end = m_buffer.indexOf("\r\n")) < 0) {
      char part[4096];
      const ssize_t count = ::recv(m_socket, part, sizeof part, 0);
      if (count <= 0) return false;
      m_buffer.append(part, static_cast<qsizetype>(count));
    }
    line = m_buffer.left(end);
    m_buffer.remove(0, end + 2);
    return true;
  }

 private:
  int m_socket;
  QByteArray m_buffer;
};

void send(int socket, const QByteArray& bytes) {
  [[maybe_unused]] const auto sent =
      ::send(socket, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL);
}

}  // namespace

FakeSpeechService::FakeSpeechService(const QString& socketPath, Manner manner, const QByteArray& outputModule)
    : m_manner(manner), m_module(outputModule) {
  const QByteArray path = socketPath.toLocal8Bit();
  ::unlink(path.constData());
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::strncpy(address.sun_path, path.constData(), sizeof address.sun_path - 1);
  m_server = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (::bind(m_server, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
      ::listen(m_server, 8) != 0)
    qFatal("no socket at %s", path.constData());
  m_threads.emplace_back([this] { accept(); });
}

FakeSpeechService::~FakeSpeechService() {
  ::shutdown(m_server, SHUT_RDWR);
  m_threads.front().join();  // no new client comes from here on
  {
    const std::lock_guard lock(m_mutex);
    for (const int client : m_clients) ::shutdown(client, SHUT_RDWR);
  }
  for (size_t i = 1; i < m_threads.size(); ++i) m_threads[i].join();
  for (const int client : m_clients) ::close(client);
  ::close(m_server);
}

void FakeSpeechService::accept() {
  for (int client; (client = ::accept4(m_server, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
    ++m_connections;
    const std::lock_guard lock(m_mutex);
    m_clients.insert(client);
    if (m_manner == Manner::Answers) m_threads.emplace_back([this, client] { serve(client); });
  }
}

void FakeSpeechService::serve(int client) {
  Lines lines(client);
  for (QByteArray line; lines.next(line);) {
    if (line.toUpper() != "SPEAK") {
      send(client, answer(line));
      continue;
    }
    send(client, "230 OK RECEIVING DATA\r\n");
    QByteArray text;
    while (lines.next(line) && line != ".") text += line;
    add(QStringLiteral("SPEAK ") + QString::fromUtf8(text));
    send(client, "225-1\r\n225 OK MESSAGE QUEUED\r\n");
  }
}

QByteArray FakeSpeechService::answer(const QByteArray& sent) {
  const QByteArray line = sent.toUpper();
  if (line.startsWith("CANCEL")) {
    add(QStringLiteral("CANCEL"));
    return "213 OK CANCELED\r\n";
  }
  if (line.startsWith("GET OUTPUT_MODULE")) return "251-" + m_module + "\r\n251 OK GET RETURNED\r\n";
  if (line.startsWith("HISTORY")) return "245-1\r\n245 OK CLIENT ID SENT\r\n";
  if (line.startsWith("QUIT")) return "231 HAPPY HACKING\r\n";
  const std::lock_guard lock(m_mutex);
  if (line.startsWith("SET SELF PRIORITY ")) m_priority = line.mid(18).trimmed();
  if (line.startsWith("SET SELF LANGUAGE ")) m_language = line.mid(18).trimmed();
  return "200 OK SET\r\n";
}

void FakeSpeechService::add(const QString& event) {
  const std::lock_guard lock(m_mutex);
  m_events += event;
  m_changed.notify_all();
}

QStringList FakeSpeechService::events() const {
  const std::lock_guard lock(m_mutex);
  return m_events;
}

bool FakeSpeechService::waitFor(const std::function<bool(const QStringList&)>& wanted) const {
  std::unique_lock lock(m_mutex);
  return m_changed.wait_for(lock, std::chrono::seconds(20), [&] { return wanted(m_events); });
}

bool FakeSpeechService::waitForSpoken(const QString& text) const {
  return waitFor([&](const QStringList& events) { return events.contains(QStringLiteral("SPEAK ") + text); });
}

QByteArray FakeSpeechService::priority() const {
  const std::lock_guard lock(m_mutex);
  return m_priority;
}

QByteArray FakeSpeechService::language() const {
  const std::lock_guard lock(m_mutex);
  return m_language;
}

}  // namespace voice

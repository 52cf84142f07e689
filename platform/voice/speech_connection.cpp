#include "platform/voice/speech_connection.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>

#include "platform/voice/speech_address.h"

namespace voice {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kReplyTimeout{2000};

/// Waits until the socket is ready for `event`; false when the time is up.
bool ready(int socket, short event, Clock::time_point until) {
  const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(until - Clock::now()).count();
  pollfd wait{socket, event, 0};
  return left > 0 && ::poll(&wait, 1, static_cast<int>(left)) == 1;
}

bool send(int socket, const QByteArray& bytes) {
  const auto until = Clock::now() + kReplyTimeout;
  for (qsizetype done = 0; done < bytes.size();) {
    if (!ready(socket, POLLOUT, until)) return false;
    // No signal: a service that goes away must not take the program with it.
    const ssize_t step =
        ::send(socket, bytes.constData() + done, static_cast<size_t>(bytes.size() - done), MSG_NOSIGNAL);
    if (step <= 0) return false;
    done += step;
  }
  return true;
}

/// A text as the body of a message: a line of its own that begins with a dot gets a second one.
QByteArray body(const QString& text) {
  QByteArray result;
  for (QByteArray line : text.toUtf8().split('\n')) {
    if (line.endsWith('\r')) line.chop(1);
    result += (line.startsWith('.') ? "." : "") + line + "\r\n";
  }
  return result + ".";
}

bool moduleReadsKanji(const QByteArray& module) {
  return !module.isEmpty() && !module.startsWith("espeak") && !module.startsWith("mbrola");
}

}  // namespace

std::unique_ptr<SpeechConnection> SpeechConnection::open(bool startService) {
  int socket = connectToSpeechService();
  if (socket < 0 && startService) {
    startSpeechService();
    socket = connectToSpeechService();
  }
  if (socket < 0) return nullptr;
  std::unique_ptr<SpeechConnection> connection(new SpeechConnection(socket));
  return connection->greet() ? std::move(connection) : nullptr;
}

SpeechConnection::~SpeechConnection() { ::close(m_socket); }

bool SpeechConnection::greet() {
  if (!ask("SET SELF CLIENT_NAME " + qgetenv("USER") + ":chiryo-daicho:main")) return false;
  const auto module = ask("GET OUTPUT_MODULE");
  m_readsKanji = module && moduleReadsKanji(module->trimmed());
  // Priority "message", because texts of priority "text" cut each other off: a screen's heading would be
  // lost to the field that is spoken after it. What is to be cut is cut by cancel().
  ask("SET SELF LANGUAGE ja");  // a service without that language still says something
  return ask("SET SELF PRIORITY MESSAGE").has_value();
}

bool SpeechConnection::cancel() { return ask("CANCEL SELF").has_value(); }

bool SpeechConnection::say(const QString& text) {
  if (text.isEmpty()) return true;
  return ask("SPEAK") && ask(body(text));
}

std::optional<QByteArray> SpeechConnection::ask(const QByteArray& line) {
  if (!send(m_socket, line + "\r\n")) return std::nullopt;
  return answer();
}

/// Lines "251-..." are the answer's contents, the line "251 ..." ends it. Codes from 300 on are refusals.
std::optional<QByteArray> SpeechConnection::answer() {
  const auto until = Clock::now() + kReplyTimeout;
  QByteArray contents;
  for (;;) {
    for (qsizetype end; (end = m_received.indexOf("\r\n")) >= 0;) {
      const QByteArray line = m_received.left(end);
      m_received.remove(0, end + 2);
      if (line.size() > 3 && line[3] == '-')
        contents += line.mid(4) + '\n';
      else
        return line.startsWith('2') ? std::optional(contents) : std::nullopt;
    }
    char part[4096];
    if (!ready(m_socket, POLLIN, until)) return std::nullopt;
    const ssize_t count = ::recv(m_socket, part, sizeof part, 0);
    if (count <= 0) return std::nullopt;
    m_received.append(part, static_cast<qsizetype>(count));
  }
}

}  // namespace voice

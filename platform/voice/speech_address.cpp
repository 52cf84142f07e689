#include "platform/voice/speech_address.h"

#include <libspeechd.h>
#include <netdb.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace voice {
namespace {

constexpr int kReplyTimeout = 2000;  // ms

struct AddressCloser {
  void operator()(SPDConnectionAddress* address) const { SPDConnectionAddress__free(address); }
};

/// Connects without waiting for a service that does not accept.
int connected(int family, const sockaddr* address, socklen_t length) {
  const int socket = ::socket(family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (socket < 0) return -1;
  bool done = ::connect(socket, address, length) == 0;
  if (!done && errno == EINPROGRESS) {
    pollfd wait{socket, POLLOUT, 0};
    int fault = 0;
    socklen_t size = sizeof fault;
    done = ::poll(&wait, 1, kReplyTimeout) == 1 &&
           ::getsockopt(socket, SOL_SOCKET, SO_ERROR, &fault, &size) == 0 && fault == 0;
  }
  if (done) return socket;
  ::close(socket);
  return -1;
}

int connectToFile(const char* path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (!path || std::strlen(path) >= sizeof address.sun_path) return -1;
  std::strcpy(address.sun_path, path);
  return connected(AF_UNIX, reinterpret_cast<const sockaddr*>(&address), sizeof address);
}

int connectToHost(const char* host, int port) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (::getaddrinfo(host ? host : "localhost", std::to_string(port).c_str(), &hints, &found) != 0) return -1;
  int socket = -1;
  for (const addrinfo* at = found; at && socket < 0; at = at->ai_next)
    socket = connected(at->ai_family, at->ai_addr, at->ai_addrlen);
  ::freeaddrinfo(found);
  return socket;
}

}  // namespace

int connectToSpeechService() {
  char* fault = nullptr;
  const std::unique_ptr<SPDConnectionAddress, AddressCloser> address(spd_get_default_address(&fault));
  std::free(fault);
  if (!address) return -1;
  if (address->method == SPD_METHOD_UNIX_SOCKET) return connectToFile(address->unix_socket_name);
  return connectToHost(address->inet_socket_host, address->inet_socket_port);
}

void startSpeechService() {
  const char* const arguments[] = {"speech-dispatcher", "--spawn", nullptr};
  pid_t child = 0;
  if (::posix_spawnp(&child, arguments[0], nullptr, nullptr, const_cast<char* const*>(arguments), environ) ==
      0)
    ::waitpid(child, nullptr, 0);
}

}  // namespace voice

#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QFile>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <thread>

namespace store::parts {

/// What file_copy.cpp is made of: an open file, and what it reads back as.

inline constexpr qint64 kChunk = 1 << 20;
inline constexpr auto kSum = QCryptographicHash::Blake2b_512;

inline int lastError() { return errno != 0 ? errno : EIO; }

/// An open file that closes itself.
class OpenedFile {
 public:
  OpenedFile(const QString& path, int flags, mode_t mode = 0)
      : m_number(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, mode)),
        m_error(m_number < 0 ? lastError() : 0) {}
  ~OpenedFile() {
    if (m_number >= 0) ::close(m_number);
  }
  OpenedFile(const OpenedFile&) = delete;
  OpenedFile& operator=(const OpenedFile&) = delete;

  int error() const { return m_error; }  ///< of opening
  int number() const { return m_number; }
  qint64 size() const {
    struct stat facts {};
    return ::fstat(m_number, &facts) == 0 ? facts.st_size : -1;
  }
  int read(qint64 at, char* to, qint64 count) const {
    while (count > 0) {
      const ssize_t step = ::pread(m_number, to, static_cast<size_t>(count), at);
      if (step < 0 && errno == EINTR) continue;
      if (step <= 0) return step < 0 ? lastError() : EIO;
      at += step, to += step, count -= step;
    }
    return 0;
  }
  int write(const char* from, qint64 count) const {
    while (count > 0) {
      const ssize_t step = ::write(m_number, from, static_cast<size_t>(count));
      if (step < 0 && errno == EINTR) continue;
      if (step <= 0) return step < 0 ? lastError() : ENOSPC;
      from += step, count -= step;
    }
    return 0;
  }

 private:
  const int m_number;
  const int m_error;
};

/// Tells bytes apart from others at the speed of memory (Fletcher's sums of 64 bits): a word that is wrong,
/// lost or in another place changes it. Fed in parts of whole words but for the last.
class Trace {
 public:
  void add(const char* bytes, qint64 count) {
    m_length += count;
    for (; count > 0; bytes += sizeof(quint64), count -= sizeof(quint64)) {
      quint64 word = 0;
      std::memcpy(&word, bytes, static_cast<size_t>(std::min<qint64>(count, sizeof word)));
      m_words += word;
      m_places += m_words;
    }
  }
  bool operator==(const Trace&) const = default;
  qint64 length() const { return m_length; }

 private:
  quint64 m_words = 0, m_places = 0;
  qint64 m_length = 0;
};

/// What a file reads back as, part by part.
class ReadBack {
 public:
  explicit ReadBack(const QString& path) : m_file(path, O_RDONLY), m_error(m_file.error()) {}

  /// Goes on to so many bytes from the start.
  void goOn(qint64 until) {
    for (; m_error == 0 && m_read < until; m_read += kChunk) {
      const qint64 count = std::min(until - m_read, kChunk);
      m_error = m_file.read(m_read, m_part.data(), count);
      if (m_error != 0) return;
      m_sum.addData(m_part.constData(), count);
      m_trace.add(m_part.constData(), count);
    }
  }
  void goToEnd() {
    if (m_error == 0) goOn(m_file.size());
  }
  int error() const { return m_error; }
  bool endsHere() const { return m_file.size() == m_trace.length(); }
  const Trace& trace() const { return m_trace; }
  QByteArray sum() const { return m_sum.result().toHex(); }

 private:
  OpenedFile m_file;
  int m_error;
  qint64 m_read = 0;
  QByteArray m_part{kChunk, Qt::Uninitialized};
  QCryptographicHash m_sum{kSum};
  Trace m_trace;
};

/// Reads a file back while it still grows, on a thread of its own.
class FollowingSum {
 public:
  explicit FollowingSum(const QString& path) : m_back(path), m_thread([this] { follow(); }) {}
  ~FollowingSum() { end(); }

  void standing(qint64 bytes) { tell(bytes * 2); }
  /// The sum of all that stands; empty where it does not read back as it was written.
  QByteArray finish(const Trace& written) {
    end();
    return m_back.error() == 0 && m_back.endsHere() && m_back.trace() == written ? m_back.sum()
                                                                                 : QByteArray();
  }

 private:
  static constexpr qint64 kWhole = 1;  ///< in the lowest bit: nothing more will come
  void tell(qint64 state) {
    m_standing = state;
    m_standing.notify_one();
  }
  void end() {
    if (!m_thread.joinable()) return;
    tell(m_standing | kWhole);
    m_thread.join();
  }
  void follow() {
    for (qint64 state = 0;; state = m_standing) {
      m_back.goOn(state / 2);
      if (state & kWhole) return;
      m_standing.wait(state);
    }
  }
  std::atomic<qint64> m_standing = 0;
  ReadBack m_back;
  std::thread m_thread;
};

}  // namespace store::parts

#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QFile>
#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <cstring>
#include <memory>
#include <mutex>
#include <queue>
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
      m_part.resize(count);
      m_error = m_file.read(m_read, m_part.data(), count);
      if (m_error != 0) return;
      m_sum.addData(QByteArrayView(m_part));
      m_trace.add(m_part.constData(), count);
    }
  }
  void goToEnd() {
    if (m_error == 0) goOn(m_file.size());
  }
  int error() const { return m_error; }
  /// The sum where the file reads back as it was written, else nothing.
  QByteArray sumAgainst(const Trace& written) const {
    return m_error == 0 && m_trace == written && m_file.size() == written.length() ? sum() : QByteArray();
  }
  QByteArray sum() const { return m_sum.result().toHex(); }

 private:
  OpenedFile m_file;
  int m_error;
  qint64 m_read = 0;
  QByteArray m_part;
  QCryptographicHash m_sum{kSum};
  Trace m_trace;
};

/// Reads files back and sums them up on a thread of its own, each while it still grows, in the order in which
/// they were begun.
class SumThread {
 public:
  /// A file that is followed. Whoever began it must end it.
  class File {
   public:
    /// So many bytes stand.
    void standing(qint64 bytes) { tell(bytes, false); }
    /// Nothing more will come; `written` is what was.
    void end(const Trace& written) {
      m_written = written;
      tell(written.length(), true);
    }
    /// The sum, once it is known; empty where the file does not read back as it was written.
    QByteArray sum() {
      std::unique_lock lock(m_guard);
      m_changed.wait(lock, [this] { return m_known; });
      return m_sum;
    }

   private:
    friend class SumThread;
    explicit File(QString path) : m_path(std::move(path)) {}
    void tell(qint64 bytes, bool whole) {
      const std::lock_guard lock(m_guard);
      m_standing = bytes, m_whole = whole;
      m_changed.notify_all();
    }
    void follow() {
      ReadBack back(m_path);
      std::unique_lock lock(m_guard);
      for (qint64 read = 0; !m_whole || read < m_standing;) {
        m_changed.wait(lock, [&] { return m_whole || m_standing > read; });
        read = m_standing;
        lock.unlock();
        back.goOn(read);
        lock.lock();
      }
      m_sum = back.sumAgainst(m_written);
      m_known = true;
      m_changed.notify_all();
    }
    const QString m_path;
    std::mutex m_guard;
    std::condition_variable m_changed;
    qint64 m_standing = 0;
    bool m_whole = false, m_known = false;
    Trace m_written;
    QByteArray m_sum;
  };

  ~SumThread() {
    if (!m_thread.joinable()) return;
    put(nullptr);
    m_thread.join();
  }
  std::shared_ptr<File> begin(const QString& path) {
    const std::shared_ptr<File> file(new File(path));
    put(file);
    if (!m_thread.joinable()) m_thread = std::thread([this] { run(); });
    return file;
  }

 private:
  void put(std::shared_ptr<File> file) {
    const std::lock_guard lock(m_guard);
    m_files.push(std::move(file));
    m_waiting.notify_one();
  }
  void run() {
    while (const std::shared_ptr<File> file = next()) file->follow();
  }
  /// Nothing: no more will come.
  std::shared_ptr<File> next() {
    std::unique_lock lock(m_guard);
    m_waiting.wait(lock, [this] { return !m_files.empty(); });
    std::shared_ptr<File> file = std::move(m_files.front());
    m_files.pop();
    return file;
  }
  std::mutex m_guard;
  std::condition_variable m_waiting;
  std::queue<std::shared_ptr<File>> m_files;
  std::thread m_thread;
};

}  // namespace store::parts

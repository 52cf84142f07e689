#include "platform/store/file_copy.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <thread>

#include "platform/store/database.h"
#include "platform/store/statement.h"
#include "platform/text/system_fault.h"

namespace store {
namespace {

constexpr qint64 kChunk = 1 << 20;
constexpr auto kSum = QCryptographicHash::Blake2b_512;

int lastError() { return errno != 0 ? errno : EIO; }

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

class HeldDatabase : public HeldFile {
 public:
  HeldDatabase(const QString& path, std::shared_ptr<Database> database)
      : HeldFile(path), m_database(std::move(database)) {}
  ~HeldDatabase() override {
    if (m_begun) (void)execute(m_database->handle(), path(), QStringLiteral("ROLLBACK"));
  }

  /// The bytes come through the engine's own opening of the file: a second one would drop its locks when
  /// closed.
  Done hold() {
    sqlite3* handle = m_database->handle();
    if (const Done begun = execute(handle, path(), QStringLiteral("BEGIN")); !begun) return begun;
    m_begun = true;
    if (const Done read = execute(handle, path(), QStringLiteral("SELECT count(*) FROM sqlite_master"));
        !read)
      return read;
    if (sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &m_file) != SQLITE_OK)
      return engineFault(handle, path());
    return {};
  }
  qint64 size() const override {
    sqlite3_int64 size = 0;
    return m_file->pMethods->xFileSize(m_file, &size) == SQLITE_OK ? size : -1;
  }
  int read(qint64 at, char* to, qint64 count) const override {
    return m_file->pMethods->xRead(m_file, to, static_cast<int>(count), at) == SQLITE_OK ? 0 : EIO;
  }

 private:
  std::shared_ptr<Database> m_database;
  bool m_begun = false;
  sqlite3_file* m_file = nullptr;
};

class HeldPlainFile : public HeldFile {
 public:
  explicit HeldPlainFile(const QString& path) : HeldFile(path), m_file(path, O_RDONLY | O_NONBLOCK) {}
  int error() const {
    if (m_file.error() != 0) return m_file.error();
    struct stat facts {};
    if (::fstat(m_file.number(), &facts) != 0) return lastError();
    return S_ISREG(facts.st_mode) ? 0 : S_ISDIR(facts.st_mode) ? EISDIR : EINVAL;
  }
  qint64 size() const override { return m_file.size(); }
  int read(qint64 at, char* to, qint64 count) const override { return m_file.read(at, to, count); }

 private:
  OpenedFile m_file;
};

/// Works out the sum of a file that still grows, on a thread of its own, from what is read back of it.
class FollowingSum {
 public:
  explicit FollowingSum(const QString& path) : m_thread([this, path] { follow(path); }) {}
  ~FollowingSum() { finish(); }

  void standing(qint64 bytes) { tell(bytes * 2); }
  /// The sum of all that stands; empty: it could not be read back.
  QByteArray finish() {
    if (m_thread.joinable()) {
      tell(m_standing | kWhole);
      m_thread.join();
    }
    return m_sum;
  }

 private:
  static constexpr qint64 kWhole = 1;  ///< in the lowest bit: nothing more will come
  void tell(qint64 state) {
    m_standing = state;
    m_standing.notify_one();
  }
  void follow(const QString& path) {
    const OpenedFile file(path, O_RDONLY);
    QByteArray part(kChunk, Qt::Uninitialized);
    QCryptographicHash sum(kSum);
    for (qint64 read = 0;;) {
      const qint64 state = m_standing, ready = std::min(state / 2 - read, kChunk);
      if (ready == 0) {
        if (state & kWhole) break;
        m_standing.wait(state);
        continue;
      }
      if (file.error() != 0 || file.read(read, part.data(), ready) != 0) return;
      sum.addData(part.constData(), ready);
      read += ready;
    }
    m_sum = sum.result().toHex();
  }
  std::atomic<qint64> m_standing = 0;
  QByteArray m_sum;
  std::thread m_thread;
};

Fault notTheSame(const QString& target) {
  return {QStringLiteral("「%1」のコピーが、元のファイルと同じになりません。（%2）")
              .arg(QFileInfo(target).fileName(), target)};
}

/// One copy on its way.
class Copying {
 public:
  Copying(const CopyJob& job, const CopyWatch& watch)
      : m_job(job), m_beside(besideName(job.target)), m_watch(watch), m_size(job.source->size()) {}

  bool failed() const { return m_fault.has_value(); }
  void write() {
    if (m_size < 0) return failReading(EIO);
    if (const int error = stepsOn(DiskStep::Create)) return failWriting(error);
    QFile::remove(m_beside);
    struct stat facts {};
    const bool known = ::stat(QFile::encodeName(m_job.source->path()).constData(), &facts) == 0;
    const OpenedFile file(m_beside, O_WRONLY | O_CREAT | O_EXCL, known ? facts.st_mode & 0777 : 0600);
    if (file.error() != 0) return failWriting(file.error());
    if (m_size > kChunk) m_following = std::make_shared<FollowingSum>(m_beside);
    QByteArray part(std::min(m_size, kChunk), Qt::Uninitialized);
    for (qint64 at = 0; at < m_size; at += part.size()) {
      part.resize(std::min(m_size - at, kChunk));
      if (const int error = m_job.source->read(at, part.data(), part.size())) return failReading(error);
      int error = stepsOn(DiskStep::Write);
      if (error == 0) error = file.write(part.constData(), part.size());
      if (error != 0) return failWriting(error);
      if (m_following) m_following->standing(at + part.size());
      if (m_watch.copied) m_watch.copied(part.size());
    }
  }
  /// With syncfs() all is synced that was written to the disk of the target. The errno, 0: synced.
  int sync(int (*syncOf)(int)) const {
    if (const int error = stepsOn(DiskStep::Sync)) return error;
    const OpenedFile file(m_beside, O_RDONLY);
    return file.error() != 0 ? file.error() : syncOf(file.number()) != 0 ? lastError() : 0;
  }
  void readBack() {
    int error = stepsOn(DiskStep::ReadBack);
    const OpenedFile copy(m_beside, O_RDONLY);
    if (error == 0) error = copy.error();
    if (error != 0) return failWriting(error);
    if (copy.size() != m_size) return failComparing();
    QByteArray original(std::min(m_size, kChunk), Qt::Uninitialized), part = original;
    for (qint64 at = 0; at < m_size; at += kChunk) {
      const qint64 count = std::min(m_size - at, kChunk);
      if (const int fault = m_job.source->read(at, original.data(), count)) return failReading(fault);
      if (const int fault = copy.read(at, part.data(), count)) return failWriting(fault);
      if (std::memcmp(original.constData(), part.constData(), static_cast<size_t>(count)) != 0)
        return failComparing();
    }
  }
  Result<PendingSum> result() {
    if (!failed()) {
      if (const auto following = m_following)
        return std::async(std::launch::deferred, [following] { return following->finish(); }).share();
      const Result<QByteArray> sum = sumOf(m_beside);
      if (sum) return std::async(std::launch::deferred, [sum = *sum] { return sum; }).share();
      m_fault = sum.fault();
    }
    m_following.reset();
    QFile::remove(m_beside);
    return *m_fault;
  }
  void failWriting(int error) { m_fault = text::systemFault(text::FileAction::Write, m_job.target, error); }

 private:
  int stepsOn(DiskStep step) const { return m_watch.before ? m_watch.before(step, m_beside) : 0; }
  void failReading(int error) {
    m_fault = text::systemFault(text::FileAction::Read, m_job.source->path(), error);
  }
  void failComparing() { m_fault = notTheSame(m_job.target); }

  CopyJob m_job;
  QString m_beside;
  const CopyWatch& m_watch;
  qint64 m_size;
  std::shared_ptr<FollowingSum> m_following;
  std::optional<Fault> m_fault;
};

int renameOver(const QString& from, const QString& to) {
  return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0 ? 0
                                                                                               : lastError();
}

}  // namespace

Result<std::unique_ptr<HeldFile>> HeldFile::database(const QString& path) {
  Result<std::shared_ptr<Database>> database = Database::open(path);
  if (!database) return database.fault();
  auto held = std::make_unique<HeldDatabase>(path, std::move(*database));
  if (const Done done = held->hold(); !done) return done.fault();
  return std::unique_ptr<HeldFile>(std::move(held));
}

Result<std::unique_ptr<HeldFile>> HeldFile::plain(const QString& path) {
  auto held = std::make_unique<HeldPlainFile>(path);
  if (const int error = held->error()) return text::systemFault(text::FileAction::Read, path, error);
  return std::unique_ptr<HeldFile>(std::move(held));
}

QString besideName(const QString& target) { return target + QStringLiteral(".~"); }

std::vector<Result<PendingSum>> copyBeside(std::span<const CopyJob> jobs, const CopyWatch& watch) {
  std::vector<Copying> copies;
  copies.reserve(jobs.size());
  for (const CopyJob& job : jobs) copies.emplace_back(job, watch).write();
  constexpr size_t kCheaperTogether = 8;
  int error = -1;  // of the one sync for all
  for (Copying& copy : copies) {
    if (copy.failed()) continue;
    if (copies.size() < kCheaperTogether)
      error = copy.sync(::fsync);
    else if (error < 0)
      error = copy.sync(::syncfs);
    if (error != 0) copy.failWriting(error);
  }
  std::vector<Result<PendingSum>> sums;
  for (Copying& copy : copies) {
    if (!copy.failed()) copy.readBack();
    sums.push_back(copy.result());
  }
  return sums;
}

Result<QByteArray> finishedSum(const QString& target, const Result<PendingSum>& copied) {
  if (!copied) return copied.fault();
  const QByteArray sum = copied->get();
  if (!sum.isEmpty()) return sum;
  QFile::remove(besideName(target));
  return notTheSame(target);
}

Done putInPlace(const QString& target, const CopyWatch& watch) {
  const QString beside = besideName(target);
  int error = watch.before ? watch.before(DiskStep::Rename, target) : 0;
  if (error == 0) error = renameOver(beside, target);
  if (error == 0) return {};
  QFile::remove(beside);
  return text::systemFault(text::FileAction::Write, target, error);
}

Done pushOnto(const QString& standing, const QString& target, const CopyWatch& watch) {
  const QString beside = besideName(target);
  QFile::remove(beside);
  int error = watch.before ? watch.before(DiskStep::Link, target) : 0;
  if (error != 0) return text::systemFault(text::FileAction::Write, target, error);
  if (::link(QFile::encodeName(standing).constData(), QFile::encodeName(beside).constData()) != 0) {
    const auto held = HeldFile::plain(standing);
    if (!held) return held.fault();
    const CopyJob job{held->get(), target};
    if (const auto sum = finishedSum(target, copyBeside({&job, 1}, watch).front()); !sum) return sum.fault();
  }
  return putInPlace(target, watch);
}

bool isSameFile(const QString& one, const QString& other) {
  struct stat first {
  }, second{};
  return ::stat(QFile::encodeName(one).constData(), &first) == 0 &&
         ::stat(QFile::encodeName(other).constData(), &second) == 0 && first.st_dev == second.st_dev &&
         first.st_ino == second.st_ino;
}

namespace {
void syncOpened(const QString& folder, int (*syncOf)(int)) {
  const OpenedFile opened(folder, O_RDONLY | O_DIRECTORY);
  if (opened.error() == 0) syncOf(opened.number());
}
}  // namespace

void syncFolder(const QString& folder) { syncOpened(folder, ::fsync); }
void syncDisk(const QString& folder) { syncOpened(folder, ::syncfs); }

Result<QByteArray> sumOf(const QString& path) {
  const OpenedFile file(path, O_RDONLY);
  const qint64 size = file.error() == 0 ? file.size() : 0;
  int error = file.error();
  QByteArray part(kChunk, Qt::Uninitialized);
  QCryptographicHash sum(kSum);
  for (qint64 at = 0; error == 0 && at < size; at += kChunk) {
    const qint64 count = std::min(size - at, kChunk);
    error = file.read(at, part.data(), count);
    if (error == 0) sum.addData(part.constData(), count);
  }
  if (error != 0) return text::systemFault(text::FileAction::Read, path, error);
  return sum.result().toHex();
}

bool isSoundDatabase(const QString& path) {
  const QByteArray address = QUrl::fromLocalFile(path).toEncoded(QUrl::FullyEncoded) + "?immutable=1";
  sqlite3* handle = nullptr;
  sqlite3_stmt* check = nullptr;
  bool sound = false;
  if (sqlite3_open_v2(address.constData(), &handle,
                      SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_PRIVATECACHE,
                      nullptr) == SQLITE_OK &&
      sqlite3_prepare_v2(handle, "PRAGMA quick_check(1)", -1, &check, nullptr) == SQLITE_OK) {
    // The trees of the whole file are looked through by one of the first instructions; what comes after them
    // reads every row for its NOT NULL columns, and is cut off.
    constexpr int kInstructions = 1000;
    sqlite3_progress_handler(
        handle, kInstructions, [](void*) { return 1; }, nullptr);
    const int answer = sqlite3_step(check);
    sound = answer == SQLITE_INTERRUPT ||
            (answer == SQLITE_ROW &&
             std::strcmp("ok", reinterpret_cast<const char*>(sqlite3_column_text(check, 0))) == 0);
  }
  sqlite3_finalize(check);
  sqlite3_close_v2(handle);
  return sound;
}

}  // namespace store

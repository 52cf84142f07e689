#include "platform/store/file_copy.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <chrono>
#include <cstring>
#include <future>

#include "platform/store/database.h"
#include "platform/store/file_copy_parts.h"
#include "platform/store/statement.h"
#include "platform/text/system_fault.h"

namespace store {

using namespace parts;

namespace {

constexpr std::chrono::milliseconds kTellEvery(50);

class HeldDatabase : public HeldFile {
 public:
  HeldDatabase(const QString& path, std::shared_ptr<Database> database)
      : HeldFile(path), m_database(std::move(database)) {}
  ~HeldDatabase() override {
    // It ends a reading transaction: nothing is lost where it fails.
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

Fault notTheSame(const QString& target) {
  return {QStringLiteral("「%1」のコピーが、元のファイルと同じになりません。（%2）")
              .arg(QFileInfo(target).fileName(), target)};
}

int renameOver(const QString& from, const QString& to) {
  return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0 ? 0
                                                                                               : lastError();
}

}  // namespace

Result<std::unique_ptr<HeldFile>> HeldFile::database(const QString& path) {
  Result<std::shared_ptr<Database>> database = Database::openAsItIs(path);
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

/// One copy on its way.
class CopyBatch::Copying {
 public:
  Copying(QString target, const CopyWatch& watch)
      : m_target(std::move(target)), m_beside(besideName(m_target)), m_watch(watch) {}
  ~Copying() { endReadBack(); }

  bool failed() const { return m_fault.has_value(); }
  void write(const HeldFile& source, SumThread& sums) {
    copy(source, sums);
    const int error = failed() ? 0 : stepsOn(DiskStep::ReadBack);
    if (error != 0) failWriting(error);
    endReadBack();  // of a copy that failed as well: the thread goes on to the next
  }
  /// Syncs the copy, with syncfs() all that was written to its disk. The errno, 0: synced. A slow disk takes
  /// its time here; the progress callback hears meanwhile that nothing more was copied.
  int sync(int (*syncOf)(int)) const {
    if (const int error = stepsOn(DiskStep::Sync)) return error;
    const OpenedFile file(m_beside, O_RDONLY);
    if (file.error() != 0) return file.error();
    auto synced =
        std::async(std::launch::async, [&] { return syncOf(file.number()) != 0 ? lastError() : 0; });
    while (synced.wait_for(kTellEvery) != std::future_status::ready)
      if (m_watch.copied) m_watch.copied(0);
    return synced.get();
  }
  Result<QByteArray> finish() {
    endReadBack();
    if (!failed()) {
      if (const QByteArray sum = m_back->sum(); !sum.isEmpty()) return sum;
      m_fault = notTheSame(m_target);
    }
    QFile::remove(m_beside);
    return *m_fault;
  }
  void failWriting(int error) { m_fault = text::systemFault(text::FileAction::Write, m_target, error); }

 private:
  void copy(const HeldFile& source, SumThread& sums) {
    const qint64 size = source.size();
    const auto failReading = [&](int error) {
      m_fault = text::systemFault(text::FileAction::Read, source.path(), error);
    };
    if (size < 0) return failReading(EIO);
    if (const int error = stepsOn(DiskStep::Create)) return failWriting(error);
    QFile::remove(m_beside);
    struct stat facts {};
    const bool known = ::stat(QFile::encodeName(source.path()).constData(), &facts) == 0;
    const OpenedFile file(m_beside, O_WRONLY | O_CREAT | O_EXCL, known ? facts.st_mode & 0777 : 0600);
    if (file.error() != 0) return failWriting(file.error());
    m_back = sums.begin(m_beside);
    QByteArray part(std::min(size, kChunk), Qt::Uninitialized);
    for (qint64 at = 0; at < size; at += part.size()) {
      part.resize(std::min(size - at, kChunk));
      if (const int error = source.read(at, part.data(), part.size())) return failReading(error);
      m_written.add(part.constData(), part.size());
      int error = stepsOn(DiskStep::Write);
      if (error == 0) error = file.write(part.constData(), part.size());
      if (error != 0) return failWriting(error);
      if (at + part.size() < size) m_back->standing(at + part.size());
      if (m_watch.copied) m_watch.copied(part.size());
    }
    ::sync_file_range(file.number(), 0, 0, SYNC_FILE_RANGE_WRITE);  // the disk may begin
  }
  void endReadBack() {
    if (m_back && !std::exchange(m_ended, true)) m_back->end(m_written);
  }
  int stepsOn(DiskStep step) const { return m_watch.before ? m_watch.before(step, m_beside) : 0; }

  QString m_target, m_beside;
  const CopyWatch& m_watch;
  Trace m_written;
  std::shared_ptr<SumThread::File> m_back;
  bool m_ended = false;
  std::optional<Fault> m_fault;
};

CopyBatch::CopyBatch(CopyWatch watch)
    : m_watch(std::move(watch)), m_sums(std::make_unique<parts::SumThread>()) {}
CopyBatch::~CopyBatch() = default;

void CopyBatch::add(const HeldFile& source, const QString& target) {
  m_copies.push_back(std::make_unique<Copying>(target, m_watch));
  m_copies.back()->write(source, *m_sums);
}

void CopyBatch::sync() {
  m_synced = true;
  std::optional<int> together;  // the errno of the one sync for all
  for (const auto& copy : m_copies) {
    if (copy->failed()) continue;
    if (!together) together = copy->sync(m_copies.size() > 1 ? ::syncfs : ::fsync);
    if (*together != 0) copy->failWriting(*together);
  }
}

std::vector<Result<QByteArray>> CopyBatch::finish() {
  if (!m_synced) sync();
  std::vector<Result<QByteArray>> sums;
  for (const auto& copy : m_copies) sums.push_back(copy->finish());
  return sums;
}

Done putInPlace(const QString& target, const CopyWatch& watch) {
  const QString beside = besideName(target);
  int error = watch.before ? watch.before(DiskStep::Rename, target) : 0;
  if (error == 0) error = renameOver(beside, target);
  if (error == 0) return {};
  QFile::remove(beside);
  return text::systemFault(text::FileAction::Write, target, error);
}

void dropJournal(const QString& target) { QFile::remove(target + QStringLiteral("-journal")); }

Done pushOnto(const QString& standing, const QString& target, const CopyWatch& watch) {
  const QString beside = besideName(target);
  QFile::remove(beside);
  const bool knowsNames = !watch.before || watch.before(DiskStep::Link, target) == 0;
  if (!knowsNames ||
      ::link(QFile::encodeName(standing).constData(), QFile::encodeName(beside).constData()) != 0) {
    const auto held = HeldFile::plain(standing);
    if (!held) return held.fault();
    CopyBatch batch(watch);
    batch.add(**held, target);
    if (const auto sums = batch.finish(); !sums.front()) return sums.front().fault();
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
  ReadBack back(path);
  back.goToEnd();
  if (back.error() != 0) return text::systemFault(text::FileAction::Read, path, back.error());
  return back.sum();
}

bool isIntactDatabase(const QString& path) {
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

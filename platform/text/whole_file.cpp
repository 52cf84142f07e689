#include "platform/text/whole_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "platform/text/system_fault.h"

namespace text {
namespace {

/// An open file that closes itself.
class Descriptor {
 public:
  Descriptor(const QString& path, int flags, mode_t mode = 0)
      : m_number(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, mode)) {}
  ~Descriptor() {
    if (m_number >= 0) ::close(m_number);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool isOpen() const { return m_number >= 0; }
  int number() const { return m_number; }
  bool sync() const { return ::fsync(m_number) == 0; }
  bool readTo(QByteArray& bytes) const {
    for (char part[16384];;) {
      const ssize_t step = ::read(m_number, part, sizeof part);
      if (step == 0) return true;
      if (step < 0 && errno != EINTR) return false;
      if (step > 0) bytes.append(part, step);
    }
  }
  bool write(const QByteArray& bytes) const {
    for (qsizetype done = 0; done < bytes.size();) {
      const ssize_t step =
          ::write(m_number, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
      if (step < 0 && errno != EINTR) return false;
      if (step > 0) done += step;
    }
    return true;
  }

 private:
  const int m_number;
};

mode_t permissionsOf(const QString& path) {
  struct stat info {};
  return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 0777 : 0644;
}

/// Whether the open file still is the one that the path names.
bool isStill(const Descriptor& file, const QString& path) {
  struct stat opened {
  }, named{};
  return ::fstat(file.number(), &opened) == 0 && ::stat(QFile::encodeName(path).constData(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

/// Writes the file beside and renames it over the target. One name serves for ever, so that a writer that was
/// killed leaves nothing that piles up; the lock keeps two writers apart, and who waited for it looks
/// whether the file was renamed away meanwhile. Folders without locks go on without.
bool replace(const QString& beside, const QString& target, const QByteArray& bytes) {
  for (;;) {
    Descriptor file(beside, O_WRONLY | O_CREAT, 0600);
    if (!file.isOpen()) return false;
    ::flock(file.number(), LOCK_EX);
    if (!isStill(file, beside)) continue;
    return ::fchmod(file.number(), permissionsOf(target)) == 0 && ::ftruncate(file.number(), 0) == 0 &&
           file.write(bytes) && file.sync() &&
           ::rename(QFile::encodeName(beside).constData(), QFile::encodeName(target).constData()) == 0;
  }
}

}  // namespace

Result<QByteArray> readWholeFile(const QString& path) {
  const Descriptor file(path, O_RDONLY);
  QByteArray bytes;
  if (!file.isOpen() || !file.readTo(bytes)) return systemFault(FileAction::Read, path, errno);
  return bytes;
}

Done writeWholeFile(const QString& path, const QByteArray& bytes) {
  const QFileInfo info(path);
  const QString target = info.isSymLink() ? info.canonicalFilePath() : info.absoluteFilePath();
  const QString beside = target + QStringLiteral(".~");
  if (!replace(beside, target, bytes)) {
    const Fault fault = systemFault(FileAction::Write, path, errno);
    QFile::remove(beside);
    return fault;
  }
  const Descriptor folder(QFileInfo(target).absolutePath(), O_RDONLY | O_DIRECTORY);
  if (folder.isOpen())
    folder.sync();  // some shared folders know no sync of a folder: the file itself is safe
  return {};
}

}  // namespace text

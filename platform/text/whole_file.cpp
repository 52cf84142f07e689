#include "platform/text/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstring>

namespace text {
namespace {

Fault systemFault(const QString& path) {
  return Fault{path + QStringLiteral("\n") + QString::fromLocal8Bit(std::strerror(errno))};
}

/// An open file that closes itself.
class Descriptor {
 public:
  Descriptor(const QString& path, int flags, mode_t mode = 0)
      : m_number(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, mode)) {}
  ~Descriptor() { close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool isOpen() const { return m_number >= 0; }
  bool sync() const { return ::fsync(m_number) == 0; }
  bool close() {
    const bool closed = m_number < 0 || ::close(m_number) == 0;
    m_number = -1;
    return closed;
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
  int m_number;
};

mode_t permissionsOf(const QString& path) {
  struct stat info {};
  return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 0777 : 0644;
}

bool writeBeside(const QString& path, const QByteArray& bytes, mode_t mode) {
  Descriptor file(path, O_WRONLY | O_CREAT | O_TRUNC, mode);
  return file.isOpen() && file.write(bytes) && file.sync() && file.close();
}

}  // namespace

Result<QByteArray> readWholeFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return Fault{path + QStringLiteral("\n") + file.errorString()};
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return Fault{path + QStringLiteral("\n") + file.errorString()};
  return bytes;
}

Done writeWholeFile(const QString& path, const QByteArray& bytes) {
  const QFileInfo info(path);
  const QString target = info.isSymLink() ? info.canonicalFilePath() : info.absoluteFilePath();
  // One name beside per process: two programs at once must not write into each other's copy.
  const QString beside = target + QStringLiteral(".~%1").arg(::getpid());
  const QByteArray from = QFile::encodeName(beside), to = QFile::encodeName(target);
  if (!writeBeside(beside, bytes, permissionsOf(target)) || ::rename(from.constData(), to.constData()) != 0) {
    const Fault fault = systemFault(path);
    ::unlink(from.constData());
    return fault;
  }
  const Descriptor folder(QFileInfo(target).absolutePath(), O_RDONLY | O_DIRECTORY);
  if (folder.isOpen())
    folder.sync();  // some shared folders know no sync of a folder: the file itself is safe
  return {};
}

}  // namespace text

#include "frame/core/backup_folder.h"

#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <algorithm>
#include <cerrno>

#include "frame/core/backup_files.h"
#include "frame/core/backup_list.h"
#include "platform/text/system_fault.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

QString picturesOf(const RunState& run) { return QDir::cleanPath(run.folders[folder::kPictures]); }
QString lastPart(const QString& path) { return QFileInfo(path).fileName(); }
QString nameInFolder(const BackupFile& file) { return lastPart(file.path); }

/// Folders and files below the picture folder, by their paths within it.
struct Pictures {
  QStringList folders, files;
};

Pictures listPictures(const QString& root) {
  Pictures found;
  const QDir base(root);
  QDirIterator place(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
  while (place.hasNext()) {
    place.next();
    (place.fileInfo().isDir() ? found.folders : found.files) += base.relativeFilePath(place.filePath());
  }
  found.folders.sort();
  found.files.sort();
  return found;
}

class FolderBackup {
 public:
  FolderBackup(const RunState& run, QString folder, const store::CopyWatch& watch)
      : m_run(run), m_folder(std::move(folder)), m_watch(watch), m_list(BackupList::read(m_folder)) {}

  BackupReport run() {
    std::vector<BackupGroup> groups = backupGroups(m_run);
    for (BackupGroup& group : groups)
      std::erase_if(group, [this](const BackupFile& file) { return !takesItsName(file); });
    for (auto& copies : copyGroups(groups, m_folder, nameInFolder, m_watch)) {
      keepTogether(copies);
      for (const FreshCopy& copy : copies) place(copy);
    }
    writeList();
    copyPictures();
    m_list.keepStanding(m_folder);
    writeList();
    if (m_listFault) m_report.faults.push_back(*m_listFault);
    store::syncDisk(m_folder);
    return std::move(m_report);
  }

 private:
  /// Whether the name is still free in the folder; the first file takes it, another one of its name is
  /// reported.
  bool takesItsName(const BackupFile& file) {
    const QString key = nameInFolder(file).toCaseFolded(), path = QDir::cleanPath(file.path);
    const QString taken = m_taken.value(key);
    if (taken.isEmpty()) m_taken.insert(key, path);
    if (!taken.isEmpty() && taken != path)
      m_report.faults.push_back(
          {u"「%1」は、同じ名前の別のファイルがあるためコピーしていません。（%2）"_s.arg(nameInFolder(file),
                                                                                         file.path)});
    return taken.isEmpty();
  }

  /// If an older copy of one half of the claims has to stay, that of the other half stays too: a new one
  /// would be of another moment.
  static void keepTogether(std::vector<FreshCopy>& copies) {
    const auto stays = std::find_if(copies.begin(), copies.end(), [](const FreshCopy& copy) {
      return !copy.sum && QFileInfo::exists(copy.target);
    });
    if (stays == copies.end()) return;
    for (FreshCopy& copy : copies) {
      if (!copy.sum) continue;
      QFile::remove(store::besideName(copy.target));
      copy.sum =
          text::Fault{u"「%1」は、「%2」と同じ時のものがそろわないためコピーしていません。（%3）"_s.arg(
              nameInFolder(copy.file), nameInFolder(stays->file), copy.file.path)};
    }
  }

  void place(const FreshCopy& copy) {
    const text::Done placed = copy.sum ? store::putInPlace(copy.target, m_watch) : copy.sum.fault();
    if (!placed) return m_report.faults.push_back(placed.fault());
    store::dropJournal(copy.target);
    m_list.put(nameInFolder(copy.file), *copy.sum);
    m_report.copied += nameInFolder(copy.file);
  }

  void copyPictures() {
    const QString root = picturesOf(m_run), name = lastPart(root);
    if (!QFileInfo(root).isDir()) {
      m_report.faults.push_back(text::systemFault(text::FileAction::Read, root, ENOENT));
      return;
    }
    const Pictures pictures = listPictures(root);
    for (const QString& folder : QStringList{u"."_s} + pictures.folders) {
      const QString source = QDir::cleanPath(root + u'/' + folder);
      const QString target = QDir::cleanPath(m_folder + u'/' + name + u'/' + folder);
      errno = 0;
      if (!QFileInfo(source).isReadable())
        m_report.pictureFaults.push_back(text::systemFault(text::FileAction::Read, source, EACCES));
      else if (!QDir().mkpath(target))
        m_report.pictureFaults.push_back(
            text::systemFault(text::FileAction::Write, target, errno != 0 ? errno : EACCES));
    }
    constexpr qsizetype kTogether = 64;
    for (qsizetype first = 0; first < pictures.files.size(); first += kTogether)
      copyPictures(root, name, pictures.files.mid(first, kTogether));
  }

  void copyPictures(const QString& root, const QString& name, const QStringList& files) {
    store::CopyBatch batch(m_watch);
    QStringList added;
    for (const QString& file : files) {
      const auto opened = store::HeldFile::plain(root + u'/' + file);
      if (!opened) {
        m_report.pictureFaults.push_back(opened.fault());
        continue;
      }
      added += name + u'/' + file;
      batch.add(**opened, m_folder + u'/' + added.back());
    }
    const auto sums = batch.finish();
    for (qsizetype place = 0; place < added.size(); ++place) {
      const auto& sum = sums[static_cast<size_t>(place)];
      const text::Done placed =
          sum ? store::putInPlace(m_folder + u'/' + added[place], m_watch) : sum.fault();
      if (!placed) {
        m_report.pictureFaults.push_back(placed.fault());
        continue;
      }
      m_list.put(added[place], *sum);
      ++m_report.pictures;
    }
  }

  /// After the files, and after the pictures. A fault is reported once.
  void writeList() {
    const text::Done written = m_list.write(m_folder);
    m_listFault = written ? std::nullopt : std::optional(written.fault());
  }

  const RunState& m_run;
  QString m_folder;
  const store::CopyWatch& m_watch;
  BackupList m_list;
  std::optional<text::Fault> m_listFault;
  QHash<QString, QString> m_taken;  ///< paths of the files by their names in the folder
  BackupReport m_report;
};

bool liesIn(const QString& folder, const QString& root) {
  return !root.isEmpty() && (folder == root || folder.startsWith(root + u'/'));
}

}  // namespace

text::Done checkBackupFolder(const RunState& run, const QString& folder) {
  if (::access(QFile::encodeName(folder).constData(), W_OK | X_OK) != 0)
    return text::systemFault(text::FileAction::Write, folder, errno);
  const auto real = [](const QString& path) { return QFileInfo(path).canonicalFilePath(); };
  const auto refuse = [&](const char16_t* why) {
    return text::Fault{u"「%1」は、%2ほかのフォルダを選択して下さい。（%3）"_s.arg(
        lastPart(folder), QString::fromUtf16(why), folder)};
  };
  const QString target = real(folder), pictures = real(picturesOf(run));
  if (liesIn(target, pictures)) return refuse(u"人体図のフォルダの中にあります。");
  if (liesIn(target, real(run.programFolder + u"/backup"_s)))
    return refuse(u"治療台帳が自動でバックアップするフォルダです。");
  // If a path is a link, both the folder of the link and that of its target are refused.
  const auto holds = [&](const QString& path) {
    return target == real(QFileInfo(path).path()) ||
           (QFileInfo::exists(path) && target == QFileInfo(real(path)).path());
  };
  if (!pictures.isEmpty() && holds(picturesOf(run))) return refuse(u"元のデータのあるフォルダです。");
  for (const BackupGroup& group : backupGroups(run))
    for (const BackupFile& file : group)
      if (holds(file.path)) return refuse(u"元のデータのあるフォルダです。");
  return {};
}

qint64 backupSize(const RunState& run) {
  qint64 bytes = 0;
  for (const BackupGroup& group : backupGroups(run))
    for (const BackupFile& file : group) bytes += QFileInfo(file.path).size();
  const QString root = picturesOf(run);
  for (const QString& file : listPictures(root).files) bytes += QFileInfo(root + u'/' + file).size();
  return bytes;
}

BackupReport backUpToFolder(const RunState& run, const QString& folder, const store::CopyWatch& watch) {
  return FolderBackup(run, QDir::cleanPath(folder), watch).run();
}

QString BackupReport::shortfall() const {
  constexpr size_t kPicturesTold = 5;
  QStringList lines = {u"データのバックアップは、全部は出来ませんでした。"_s, u"コピーできなかったもの:"_s};
  for (const text::Fault& fault : faults) lines += fault.message;
  for (size_t i = 0; i < std::min(pictureFaults.size(), kPicturesTold); ++i)
    lines += pictureFaults[i].message;
  if (pictureFaults.size() > kPicturesTold)
    lines += u"ほかに人体図のファイル %1個。"_s.arg(pictureFaults.size() - kPicturesTold);
  QStringList names = copied;
  if (pictures > 0) names += u"人体図のファイル %1個"_s.arg(pictures);
  lines += u"コピーしたもの:"_s;
  lines += names.isEmpty() ? u"ありません。"_s : names.join(u'、');
  return lines.join(u'\n');
}

}  // namespace frame

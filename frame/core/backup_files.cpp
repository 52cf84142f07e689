#include "frame/core/backup_files.h"

#include <QFile>
#include <QFileInfo>

namespace frame {
namespace {

constexpr int kSettings = -1;

/// The order of the copies; the two claim files stand side by side.
struct FileRow {
  int folderEntry;
  const char16_t* name;
  bool withTheOneBefore = false;
};
constexpr FileRow kFiles[] = {
    {folder::kPhrases2, u"CL2moji2000.mdb"},   {folder::kPhrases1, u"CLmoji2000.mdb"},
    {folder::kAcupoints, u"Keiraku2000.mdb"},  {folder::kVisits, u"カルテ2データ2000.mdb"},
    {folder::kDoctors, u"同意医師2000.mdb"},   {folder::kInsurers, u"保険者2000.mdb"},
    {folder::kClaims1, u"保険申請2000_1.mdb"}, {folder::kClaims2, u"保険申請2000_2.mdb", true},
    {folder::kAppointments, u"予約2000.mdb"},  {folder::kFees, u"料金設定2000.mdb"},
    {folder::kPatients, u"臨床QV2000N.mdb"},   {kSettings, u"qv.DAT"},
};

text::Result<std::unique_ptr<store::HeldFile>> hold(const BackupFile& file) {
  return file.settings ? store::HeldFile::plain(file.path) : store::HeldFile::database(file.path);
}

text::Fault damaged(const BackupFile& file) {
  return {QStringLiteral("「%1」は、壊れているためコピーしていません。（%2）")
              .arg(QFileInfo(file.path).fileName(), file.path)};
}

FreshCopies copyGroup(const BackupGroup& group, const QString& folder,
                      const std::function<QString(const BackupFile&)>& nameOf,
                      const store::CopyWatch& watch) {
  FreshCopies copies;
  std::vector<std::unique_ptr<store::HeldFile>> held;
  std::vector<store::CopyJob> jobs;
  std::vector<size_t> places;  // of the jobs among the copies
  for (const BackupFile& file : group) {
    const QString target = folder + u'/' + nameOf(file);
    auto opened = hold(file);
    copies.push_back({file, target, opened ? text::Result(store::PendingSum()) : opened.fault()});
    if (!opened) continue;
    places.push_back(copies.size() - 1);
    jobs.push_back({opened->get(), target});
    held.push_back(std::move(*opened));
  }
  const auto made = store::copyBeside(jobs, watch);
  held.clear();  // nobody waits for the look at the copies
  for (size_t job = 0; job < jobs.size(); ++job) {
    FreshCopy& copy = copies[places[job]];
    copy.made = made[job];
    const QString beside = store::besideName(copy.target);
    if (!copy.made || isWhole(copy.file, beside)) continue;
    copy.made = damaged(copy.file);
    QFile::remove(beside);
  }
  return copies;
}

}  // namespace

std::vector<BackupGroup> backupGroups(const RunState& run) {
  std::vector<BackupGroup> groups;
  for (const FileRow& row : kFiles) {
    if (!row.withTheOneBefore) groups.emplace_back();
    const bool settings = row.folderEntry == kSettings;
    groups.back().push_back(
        {settings ? settingsPath(run.programFolder) : run.folders[static_cast<size_t>(row.folderEntry)],
         QString::fromUtf16(row.name), settings});
  }
  return groups;
}

void copyGroups(const std::vector<BackupGroup>& groups, const QString& folder,
                const std::function<QString(const BackupFile&)>& nameOf, const store::CopyWatch& watch,
                const std::function<void(const FreshCopies&)>& finish) {
  FreshCopies before;
  for (const BackupGroup& group : groups) {
    FreshCopies copies = copyGroup(group, folder, nameOf, watch);
    finish(before);
    before = std::move(copies);
  }
  finish(before);
}

bool isWhole(const BackupFile& file, const QString& copy) {
  if (!file.settings) return store::isSoundDatabase(copy);
  const auto settings = readSettingsFile(copy);
  return settings && settings->readWhole;
}

}  // namespace frame

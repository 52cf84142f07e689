#include "frame/core/backup_files.h"

#include <QFile>
#include <QFileInfo>

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kSettings = -1;

/// The order of the copies; the two claim files form a group.
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
  return {u"「%1」は、壊れているためコピーしていません。（%2）"_s.arg(QFileInfo(file.path).fileName(),
                                                                      file.path)};
}

/// Opens the files of a group, all before the first is copied, and adds them to the batch. What cannot be
/// opened has its fault already.
void addGroup(std::vector<FreshCopy>& copies, store::CopyBatch& batch) {
  std::vector<std::unique_ptr<store::HeldFile>> held;
  for (FreshCopy& copy : copies) {
    auto opened = hold(copy.file);
    if (!opened) copy.sum = opened.fault();
    held.push_back(opened ? std::move(*opened) : nullptr);
  }
  for (size_t file = 0; file < copies.size(); ++file)
    if (held[file]) batch.add(*held[file], copies[file].target);
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

std::vector<std::vector<FreshCopy>> copyGroups(const std::vector<BackupGroup>& groups, const QString& folder,
                                               const std::function<QString(const BackupFile&)>& nameOf,
                                               const store::CopyWatch& watch) {
  store::CopyBatch batch(watch);
  std::vector<std::vector<FreshCopy>> all;
  for (const BackupGroup& group : groups) {
    std::vector<FreshCopy>& copies = all.emplace_back();
    for (const BackupFile& file : group)
      copies.push_back({file, folder + u'/' + nameOf(file), QByteArray(), false});
    addGroup(copies, batch);
  }
  batch.sync();
  // The look at the copies goes on while their sums are worked out.
  for (std::vector<FreshCopy>& copies : all)
    for (FreshCopy& copy : copies) copy.whole = isWhole(copy.file, store::besideName(copy.target));
  const auto sums = batch.finish();
  auto sum = sums.begin();
  for (std::vector<FreshCopy>& copies : all) {
    for (FreshCopy& copy : copies) {
      if (!copy.sum) continue;
      copy.sum = *sum++;
      if (!copy.sum || copy.whole) continue;
      copy.sum = damaged(copy.file);
      QFile::remove(store::besideName(copy.target));
    }
  }
  return all;
}

bool isWhole(const BackupFile& file, const QString& copy) {
  if (!file.settings) return store::isIntactDatabase(copy);
  const auto settings = readSettingsFile(copy);
  return settings && settings->readWhole;
}

}  // namespace frame

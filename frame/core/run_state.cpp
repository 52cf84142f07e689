#include "frame/core/run_state.h"

#include <QFile>

#include "frame/core/prefecture.h"
#include "frame/core/web_pages.h"
#include "platform/text/number.h"
#include "platform/text/whole_file.h"

namespace frame {
namespace {

/// An entry of DataFolders, the slot that keeps it, and the default beside the program (nullptr: carried as
/// it is, no screen edits it).
struct FolderSlot {
  int entry;
  int slot;
  const char16_t* fallback;
};

constexpr FolderSlot kFolderSlots[] = {
    {folder::kPatients, 3, u"/臨床QV2000N.mdb"},
    {folder::kAppointments, 4, u"/予約2000.mdb"},
    {folder::kClaims1, 5, u"/保険申請2000_1.mdb"},
    {folder::kAcupoints, 6, u"/Keiraku2000.mdb"},
    {folder::kPhrases1, 7, u"/CLmoji2000.mdb"},
    {folder::kPhrases2, 8, u"/CL2moji2000.mdb"},
    {folder::kVisits, 9, u"/カルテ2データ2000.mdb"},
    {7, 10, nullptr},
    {8, 11, nullptr},
    {folder::kSpare9, 12, nullptr},
    {folder::kUpdatePage, slot::kUpdatePage, nullptr},
    {folder::kDoctors, 53, u"/同意医師2000.mdb"},
    {folder::kInsurers, 54, u"/保険者2000.mdb"},
    {folder::kFees, 55, u"/料金設定2000.mdb"},
    {folder::kClaims2, 73, u"/保険申請2000_2.mdb"},
    {folder::kPictures, 14, u"/GDATA"},
};

/// Labels of the sections of the file. They look like file names, but no such file exists.
struct FixedSlot {
  int slot;
  const char16_t* text;
};

constexpr FixedSlot kFixedSlots[] = {
    {slot::kWarning, u"このデータは知識が無い場合は、書き換えないで下さい。大切な設定データです。"},
    {slot::kMarkerFolders, u"qvchkfolders.ini"},
    {slot::kMarkerCheckBox, u"qvchkbox.ini"},
    {slot::kMarkerTextBox, u"txtbox.ini"},
    {slot::kMarkerProfile, u"touroku.ini"},
};

/// Values that early versions wrote into the licence numbers by mistake.
constexpr char16_t kStaleHari[] = u"98ME";
constexpr char16_t kStaleKyu[] = u"0";

constexpr char16_t kTokyoDefault[] = u"6";

QString blank() { return QString(QLatin1String("")); }

void raiseCounter(RunState& run) {
  QString& counter = run.settings[slot::kRunCounter];
  counter = counter.isEmpty() ? QStringLiteral("0") : QString::number(text::intOf(counter) + 1);
  run.runCounter = static_cast<int>(text::intOf(counter));
}

/// Keeps a settings file that could not be read whole under a name that is still free.
text::Done keepBeside(const QString& path) {
  if (!QFile::exists(path)) return {};
  QString kept = path + QStringLiteral(".old");
  for (int n = 2; QFile::exists(kept); ++n) kept = path + QStringLiteral(".old") + QString::number(n);
  const auto bytes = text::readWholeFile(path);
  return bytes ? text::writeWholeFile(kept, *bytes) : text::Done(bytes.fault());
}

}  // namespace

QString settingsPath(const QString& programFolder) { return programFolder + QStringLiteral("/qv.dat"); }

void loadRun(const SettingsSlots& settings, const QString& programFolder, RunState& run) {
  run.programFolder = programFolder;
  run.settings = settings;
  raiseCounter(run);
  for (const FolderSlot& row : kFolderSlots) {
    QString& path = run.folders[static_cast<size_t>(row.entry)];
    path = run.settings[row.slot];
    if (path.isEmpty() && row.fallback) path = programFolder + QString::fromUtf16(row.fallback);
  }
  for (const ProfileField& field : profileFields()) run.profile[field.slot] = run.settings[field.slot];
  if (run.settings[slot::kLicenceHari] == kStaleHari) run.settings[slot::kLicenceHari] = blank();
  if (run.settings[slot::kLicenceKyu] == kStaleKyu) run.settings[slot::kLicenceKyu] = blank();
  run.aichiSubmission = run.settings[slot::kAichi];
  run.tokyoSubmission = run.settings[slot::kTokyo];
  if (run.tokyoSubmission.isEmpty()) run.tokyoSubmission = QString::fromUtf16(kTokyoDefault);
}

text::Done readRun(const QString& programFolder, RunState& run) {
  const auto settings = readSettingsFile(settingsPath(programFolder));
  if (!settings) return settings.fault();
  loadRun(*settings, programFolder, run);
  run.prefectureCode = readPrefectureCode(programFolder);
  return {};
}

SettingsSlots rebuildSettings(const RunState& run, SettingsWriter writer) {
  SettingsSlots rebuilt = run.settings;
  for (const FolderSlot& row : kFolderSlots) rebuilt[row.slot] = run.folders[static_cast<size_t>(row.entry)];
  for (const ProfileField& field : profileFields()) rebuilt[field.slot] = run.profile[field.slot];
  for (const FixedSlot& row : kFixedSlots) rebuilt[row.slot] = QString::fromUtf16(row.text);
  rebuilt[slot::kRunCounter] = QString::number(run.runCounter);
  rebuilt[slot::kAichi] = run.aichiSubmission;
  rebuilt[slot::kTokyo] = run.tokyoSubmission;
  // Kept: saving the folders has always cleared 申請欄の氏名印刷.
  if (writer == SettingsWriter::Folders) rebuilt[slot::kPrintApplicantName] = blank();
  if (writer == SettingsWriter::Profile || writer == SettingsWriter::ProgramEnd)
    rebuilt[slot::kUpdatePage] = webAddress(WebPage::Update);
  return rebuilt;
}

text::Done saveRun(RunState& run, SettingsWriter writer) {
  const QString path = settingsPath(run.programFolder);
  if (!run.settings.readWhole) {
    if (writer == SettingsWriter::ProgramEnd) return {};
    if (const auto kept = keepBeside(path); !kept) return kept;
  }
  SettingsSlots rebuilt = rebuildSettings(run, writer);
  if (const auto written = writeSettingsFile(path, rebuilt); !written) return written;
  rebuilt.readWhole = true;
  run.settings = rebuilt;
  run.profile[slot::kPrintApplicantName] = rebuilt[slot::kPrintApplicantName];
  return {};
}

SettingsSlots freshSettings() {
  SettingsSlots fresh;
  for (const FixedSlot& row : kFixedSlots) fresh[row.slot] = QString::fromUtf16(row.text);
  fresh[slot::kRunCounter] = QStringLiteral("0");
  fresh[12] =
      QStringLiteral("治療台帳");  // an entry of the folders that must not be blank, else no menu opens
  fresh[slot::kUpdatePage] = webAddress(WebPage::Update);
  for (const int flag : {slot::kPrintLicence, slot::kPrintApplicantName, profile::kRelationPrinted,
                         profile::kElderlyNamePrinted, slot::kTopics})
    fresh[flag] = QStringLiteral("0");
  fresh[slot::kAichi] = QStringLiteral("4");
  fresh[slot::kTokyo] = QString::fromUtf16(kTokyoDefault);
  fresh.readWhole = true;
  return fresh;
}

}  // namespace frame

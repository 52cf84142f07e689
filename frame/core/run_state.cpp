#include "frame/core/run_state.h"

#include <QFile>

#include "frame/core/prefecture.h"
#include "frame/core/web_pages.h"
#include "platform/text/number.h"
#include "platform/text/utf16.h"
#include "platform/text/whole_file.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

/// An entry of DataFolders, the slot that stores it, and the default within the program folder (nullptr: the
/// entry is carried as it is, no screen edits it).
struct FolderSlot {
  int entry;
  slot::Slot slot;
  const char16_t* fallback;
};

constexpr FolderSlot kFolderSlots[] = {
    {folder::kPatients, slot::kPatientsPath, u"/臨床QV2000N.mdb"},
    {folder::kAppointments, slot::kAppointmentsPath, u"/予約2000.mdb"},
    {folder::kClaims1, slot::kClaims1Path, u"/保険申請2000_1.mdb"},
    {folder::kAcupoints, slot::kAcupointsPath, u"/Keiraku2000.mdb"},
    {folder::kPhrases1, slot::kPhrases1Path, u"/CLmoji2000.mdb"},
    {folder::kPhrases2, slot::kPhrases2Path, u"/CL2moji2000.mdb"},
    {folder::kVisits, slot::kVisitsPath, u"/カルテ2データ2000.mdb"},
    {folder::kSpare7, slot::kSpareFolder7, nullptr},
    {folder::kSpare8, slot::kSpareFolder8, nullptr},
    {folder::kSpare9, slot::kSpareFolder9, nullptr},
    {folder::kUpdatePage, slot::kUpdatePage, nullptr},
    {folder::kDoctors, slot::kDoctorsPath, u"/同意医師2000.mdb"},
    {folder::kInsurers, slot::kInsurersPath, u"/保険者2000.mdb"},
    {folder::kFees, slot::kFeesPath, u"/料金設定2000.mdb"},
    {folder::kClaims2, slot::kClaims2Path, u"/保険申請2000_2.mdb"},
    {folder::kPictures, slot::kPicturesPath, u"/GDATA"},
};

consteval bool eachFolderOnce() {
  int entries = 0;
  for (const FolderSlot& row : kFolderSlots) {
    entries |= 1 << row.entry;
    for (const FolderSlot& other : kFolderSlots)
      if (&row != &other && row.slot == other.slot) return false;
  }
  return entries == (1 << folder::kCount) - 1;
}
static_assert(std::size(kFolderSlots) == folder::kCount && eachFolderOnce());

/// Labels of the sections of the file. They look like file names, but no such file exists.
struct FixedSlot {
  slot::Slot slot;
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
  counter = counter.isEmpty() ? u"0"_s : QString::number(text::intOf(counter) + 1);
  run.runCounter = static_cast<int>(text::intOf(counter));
}

/// Copies a settings file that could not be read whole to a name that is still free.
text::Done copyAside(const QString& path) {
  if (!QFile::exists(path)) return {};
  QString copy = path + u".old"_s;
  for (int n = 2; QFile::exists(copy); ++n) copy = path + u".old"_s + QString::number(n);
  const auto bytes = text::readWholeFile(path);
  return bytes ? text::writeWholeFile(copy, *bytes) : text::Done(bytes.fault());
}

}  // namespace

QString settingsPath(const QString& programFolder) { return programFolder + u"/qv.dat"_s; }

void loadRun(const SettingsSlots& settings, const QString& programFolder, RunState& run) {
  run.programFolder = programFolder;
  run.settings = settings;
  raiseCounter(run);
  for (const FolderSlot& row : kFolderSlots) {
    QString& path = run.folders[static_cast<size_t>(row.entry)];
    path = run.settings[row.slot];
    if (path.isEmpty() && row.fallback) path = programFolder + text::utf16(row.fallback);
  }
  for (const ProfileField& field : profileFields()) run.profile[field.slot] = run.settings[field.slot];
  if (run.settings[slot::kLicenceHari] == kStaleHari) run.settings[slot::kLicenceHari] = blank();
  if (run.settings[slot::kLicenceKyu] == kStaleKyu) run.settings[slot::kLicenceKyu] = blank();
  run.aichiSubmission = run.settings[slot::kAichi];
  run.tokyoSubmission = run.settings[slot::kTokyo];
  if (run.tokyoSubmission.isEmpty()) run.tokyoSubmission = text::utf16(kTokyoDefault);
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
  for (const FixedSlot& row : kFixedSlots) rebuilt[row.slot] = text::utf16(row.text);
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
    if (const auto copied = copyAside(path); !copied) return copied;
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
  for (const FixedSlot& row : kFixedSlots) fresh[row.slot] = text::utf16(row.text);
  fresh[slot::kRunCounter] = u"0"_s;
  fresh[slot::kSpareFolder9] = u"治療台帳"_s;  // must not be blank, otherwise no main menu opens
  fresh[slot::kUpdatePage] = webAddress(WebPage::Update);
  for (const int flag : {slot::kPrintLicence, slot::kPrintApplicantName, slot::kRelationPrinted,
                         slot::kElderlyNamePrinted, slot::kTopics})
    fresh[flag] = u"0"_s;
  fresh[slot::kAichi] = u"4"_s;
  fresh[slot::kTokyo] = text::utf16(kTokyoDefault);
  fresh.readWhole = true;
  return fresh;
}

}  // namespace frame

#pragma once

#include <QString>
#include <memory>

#include "frame/core/clinic_profile.h"
#include "frame/core/data_folders.h"
#include "frame/core/era_date.h"
#include "frame/core/settings_slots.h"
#include "platform/text/clock.h"

namespace frame {

/// Values of RunState::callerMark.
namespace caller {
inline constexpr int kMainMenu = 2, kPatients = 3;
}
/// Values of RunState::calendarMode.
namespace calendar {
inline constexpr int kBookings = 1, kTakings = 2;
}

/// A day as three numbers, as it was asked for: it need not exist (2月31日).
struct DayAsked {
  int year = 0;
  int month = 0;
  int day = 0;
};

/// All run-wide values, one copy, handed to every screen. A dialog returns its answer through it.
///
/// What stands where: the fields of 登録 (profileFields()) in `profile`, paths in `folders`, the submissions
/// in their own strings; all other values (licence numbers 18 to 20 and their flag 16, captions 22 to 26,
/// conditions 68 to 70, topics 88, the slots that are merely carried) in `settings`.
struct RunState {
  QString programFolder;       ///< folder of the program file, without a slash at the end
  SettingsSlots settings;      ///< the 90 fields of qv.dat as read (SettingsSlots)
  DataFolders folders;         ///< sixteen paths
  DataFolders pendingFolders;  ///< as typed on LANフォルダ指定, until its question is answered
  ClinicProfile profile;
  QString prefectureCode;   ///< "01" to "47"
  QString aichiSubmission;  ///< "3" or "4"
  QString tokyoSubmission;  ///< "5" or "6"
  int runCounter = 0;
  EraCapability eraCapability = EraCapability::Supported;
  int lastAnswer = 0;         ///< answer of the last question: 1 is OK or はい
  int lastScreenMode = 0;     ///< 1 receipts, 2 claims; set by the main menu
  qint64 patientOnView = -1;  ///< ID of the patient on view when the patient screen was last left
  int callerMark = 0;         ///< where the appointment screens go back to (caller); 0: nowhere
  DayAsked dayAsked;          ///< the last day asked for in the appointment book
  int calendarMode = calendar::kBookings;  ///< whom the calendar serves; any other value: the takings
  QString platformValue;                   ///< of the settings: "Xp" hides the calendar; nothing sets it here
  bool menuLoadedBefore = false;           ///< the main menu speaks its greeting on the first load only
  bool itemsOnlyNoteSilenced = false;      ///< 項目のみ印刷の注意事項 stays closed for this run
  const text::Clock* clock = nullptr;

  /// Era operations with this run's capability and clock.
  EraDates eraDates() const { return EraDates(eraCapability, *clock); }
};

/// Who writes qv.dat. All rebuild the 90 slots from the run-wide values; some differ in one slot.
enum class SettingsWriter {
  Folders,     ///< LANフォルダ指定の実行: 申請欄の氏名印刷 (slot 27) is written blank
  Profile,     ///< 登録の実行: the update page's address goes into slot 13
  ProgramEnd,  ///< likewise
  Other,       ///< 登録4, txtbox, 無データ, 施術録条件
};

/// Path of the settings file beside the program.
QString settingsPath(const QString& programFolder);

/// Takes the slots as read into the run: the counter is raised, blank paths fall back to the files beside
/// the program, two stale licence numbers are cleared.
void loadRun(const SettingsSlots& settings, const QString& programFolder, RunState& run);

/// Reads qv.dat and the installation record beside the program. The fault names the missing file; then
/// `run` is untouched.
text::Done readRun(const QString& programFolder, RunState& run);

/// All 90 slots from the run-wide values.
SettingsSlots rebuildSettings(const RunState& run, SettingsWriter writer);

/// Rebuilds the slots and writes qv.dat over the old one; nothing is merged. Where the start found the file
/// short or damaged, the end of the program leaves it alone, and a save that the user asked for keeps the
/// old file beside as qv.dat.old (.old2 ...) first.
text::Done saveRun(RunState& run, SettingsWriter writer);

/// The settings that a fresh program folder is laid out with.
SettingsSlots freshSettings();

}  // namespace frame

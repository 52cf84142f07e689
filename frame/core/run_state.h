#pragma once

#include <QString>
#include <optional>

#include "frame/core/clinic_profile.h"
#include "frame/core/data_folders.h"
#include "frame/core/era_date.h"
#include "frame/core/settings_slots.h"
#include "platform/route/route.h"
#include "platform/text/clock.h"

namespace frame {

/// What the date cursor of 予約カレンダー and 集計カレンダー chooses a day for.
enum class CalendarUse { Bookings, Takings };

/// A day as three numbers, as it was asked for: it need not exist (2月31日).
struct DayAsked {
  int year = 0;
  int month = 0;
  int day = 0;
};

/// All values of the run, one copy, handed to every screen.
///
/// The current value of a field of 登録 (profileFields()) is in `profile`, of a path in `folders`, of the
/// submissions in their own strings; `settings` has what was read or written last for these, and the current
/// value of all other slots.
struct RunState {
  QString programFolder;       ///< folder of the program file, without a slash at the end
  SettingsSlots settings;      ///< the fields of qv.dat
  DataFolders folders;         ///< sixteen paths
  DataFolders pendingFolders;  ///< as typed on LANフォルダ指定, until its question is answered
  ClinicProfile profile;
  QString prefectureCode;   ///< "01" to "47"
  QString aichiSubmission;  ///< "3" or "4"
  QString tokyoSubmission;  ///< "5" or "6"
  int runCounter = 0;
  EraCapability eraCapability = EraCapability::Supported;
  qint64 patientOnView = -1;  ///< ID of the patient on view when the patient screen was last left
  std::optional<screen::ScreenName> bookingsCaller;  ///< the screen that the appointment book goes back to
  DayAsked dayAsked;                                 ///< the last day asked for in the appointment book
  CalendarUse calendarUse = CalendarUse::Bookings;
  QString platformValue;               ///< of the settings: "Xp" hides the calendar; nothing sets it here
  bool menuLoadedBefore = false;       ///< the main menu speaks its greeting on the first load only
  bool itemsOnlyNoteSilenced = false;  ///< 項目のみ印刷の注意事項 stays closed for this run
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

/// Path of the settings file in the program folder.
QString settingsPath(const QString& programFolder);

/// Takes the slots as read into the run: the counter is raised, blank paths fall back to the files in
/// the program folder, two stale licence numbers are cleared.
void loadRun(const SettingsSlots& settings, const QString& programFolder, RunState& run);

/// Reads qv.dat and the installation record of the program folder. A fault names the missing file and
/// leaves `run` as it was.
text::Done readRun(const QString& programFolder, RunState& run);

/// All 90 slots from the run-wide values.
SettingsSlots rebuildSettings(const RunState& run, SettingsWriter writer);

/// Rebuilds the slots and writes qv.dat over the old one; nothing is merged. If the start found the file
/// short or damaged, the end of the program does not touch it, and a save that the user asked for first
/// copies the old file to qv.dat.old (.old2 ...).
text::Done saveRun(RunState& run, SettingsWriter writer);

/// The settings that a fresh program folder is laid out with.
SettingsSlots freshSettings();

}  // namespace frame

#pragma once

#include <QString>
#include <memory>

#include "frame/core/clinic_profile.h"
#include "frame/core/data_folders.h"
#include "frame/core/era_date.h"
#include "frame/core/settings_slots.h"
#include "platform/text/clock.h"

namespace frame {

/// All run-wide values, one copy, handed to every screen. A dialog returns its answer through it.
struct RunState {
  QString programFolder;          ///< folder of the program file, without a slash at the end
  SettingsSlots settings;         ///< the 90 fields of qv.dat as read (SettingsSlots)
  DataFolders folders;            ///< sixteen paths
  ClinicProfile profile;
  QString prefectureCode;         ///< "01" to "47"
  QString aichiSubmission;        ///< "3" or "4"
  QString tokyoSubmission;        ///< "5" or "6"
  int runCounter = 0;
  EraCapability eraCapability = EraCapability::Supported;
  int lastAnswer = 0;             ///< answer of the last question: 1 is OK or はい
  int lastScreenMode = 0;         ///< 1 receipts, 2 claims; set by the main menu
  bool menuLoadedBefore = false;  ///< the main menu speaks its greeting on the first load only
  bool itemsOnlyNoteSilenced = false;  ///< 項目のみ印刷の注意事項 stays closed for this run
  const text::Clock* clock = nullptr;

  /// Era operations with this run's capability and clock.
  EraDates eraDates() const { return EraDates(eraCapability, *clock); }
};

}  // namespace frame

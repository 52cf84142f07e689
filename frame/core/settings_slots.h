#pragma once

#include <QString>
#include <array>

#include "platform/text/result.h"

namespace frame {

/// Numbers of the fields of qv.dat that code names; the field's meaning is its position.
namespace slot {
inline constexpr int kWarning = 0, kRunCounter = 1, kMarkerFolders = 2, kUpdatePage = 13,
                     kMarkerCheckBox = 15, kPrintLicence = 16, kAichi = 17, kLicenceHari = 18,
                     kLicenceKyu = 19, kLicenceMassage = 20, kMarkerTextBox = 21, kCaptionText1 = 22,
                     kCaptionText2 = 23, kCaptionText3 = 24, kCaptionSymptom = 25, kCaptionTreatment = 26,
                     kPrintApplicantName = 27, kMarkerProfile = 28, kTopics = 88, kTokyo = 89;
}

/// SettingsSlots: the fields of qv.dat in memory, index 0 to 100, of which 0 to 89 are in the file.
class SettingsSlots {
 public:
  static constexpr int kFileFields = 90;

  QString& operator[](int index) { return m_fields.at(static_cast<size_t>(index)); }
  const QString& operator[](int index) const { return m_fields.at(static_cast<size_t>(index)); }

  /// True when the file was read whole; a short or damaged one must not be overwritten by a mere start.
  bool readWhole = false;

 private:
  std::array<QString, 101> m_fields;
};

/// Reads qv.dat (Shift-JIS, one line of quoted fields). A missing file is a fault that names the file; a
/// short or damaged one leaves the remaining slots blank.
text::Result<SettingsSlots> readSettingsFile(const QString& path);
/// Writes the 90 fields whole: beside, synced, renamed.
text::Done writeSettingsFile(const QString& path, const SettingsSlots& settings);

}  // namespace frame

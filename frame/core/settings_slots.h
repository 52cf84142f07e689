#pragma once

#include <QString>
#include <array>

#include "platform/text/result.h"

namespace frame {

/// The fields of qv.dat. The file has no other key: a field's meaning is its place in this list.
namespace slot {
enum Slot : int {
  kWarning,        ///< a fixed text that asks not to edit the file
  kRunCounter,     ///< starts of the program; every tenth run makes a backup
  kMarkerFolders,  ///< markers are fixed texts that only label the sections of the file

  kPatientsPath,
  kAppointmentsPath,
  kClaims1Path,
  kAcupointsPath,
  kPhrases1Path,
  kPhrases2Path,
  kVisitsPath,
  kSpareFolder7,
  kSpareFolder8,
  kSpareFolder9,  ///< must not be blank, otherwise no main menu opens
  kUpdatePage,    ///< address of the update web page
  kPicturesPath,

  kMarkerCheckBox,
  kPrintLicence,  ///< "2": the licence number is printed in place of the registration number, "0": not
  kAichi,         ///< association that claims are submitted to in Aichi: "3" or "4"
  kLicenceHari,
  kLicenceKyu,
  kLicenceMassage,

  kMarkerTextBox,
  kCaptionText1,  ///< captions that the practice gave to fields of the patient and the chart screens
  kCaptionText2,
  kCaptionText3,
  kCaptionSymptom,
  kCaptionTreatment,
  kPrintApplicantName,  ///< 申請欄の氏名印刷: "1" or "0"

  kMarkerProfile,
  kPractitioner,
  kClinicAddress,
  kClinicName,
  kClinicZip,
  kClinicAddressKana,
  kPayment,  ///< 支払機関区分
  kDeposit,  ///< 預金の種類, like all up to the account of the practice
  kBank,
  kBranch,
  kPostOffice,
  kInstitution,  ///< 会員の機関番号
  kAccountHolderKana,
  kAccountHolder,
  kAccount,
  kAgentKana,  ///< the representative (代表者) and his account
  kAgent,
  kAgentAddressKana,
  kAgentDeposit,
  kAgentBank,
  kAgentBranch,
  kAgentPostOffice,
  kAgentAccountHolderKana,
  kAgentAccountHolder,
  kAgentAccount,

  kDoctorsPath,
  kInsurersPath,
  kFeesPath,

  kAssociation,  ///< 所属師会名
  kPresident,    ///< 所属師会の会長名
  kPractitionerKana,
  kAgentAddress,
  kAgentZip,
  kClinicTelephone,
  kAgentTelephone,
  kMassageToo,  ///< "on": the practice bills massage as well; otherwise blank
  kBankKind,
  kBranchKind,
  kAgentBankKind,
  kAgentBranchKind,
  kSummaryCondition1,  ///< conditions of the summary sheets
  kSummaryCondition2,
  kSummaryCondition3,
  kSpare71,
  kSpare72,
  kClaims2Path,
  kMarginNumber,        ///< 欄外番号
  kPractitionerNumber,  ///< 施術者登録番号
  kRelationPrinted,     ///< 本人の続柄印刷: "1" or "0"
  kElderlyNamePrinted,  ///< 後期高齢被保険者氏名印刷: "1" or "0"
  kElderlyHari,         ///< 後期高齢者医療登録番号 of acupuncture
  kElderlyMassage,      ///< the same of massage
  kBankCode,
  kAgentBankCode,
  kInstitutionHari,     ///< 会員の機関番号 of acupuncture
  kInstitutionMassage,  ///< the same of massage
  kHealthOffice,        ///< 保健所登録区分
  kSpare85,
  kMail,
  kRegistration,  ///< 登録記号番号
  kTopics,        ///< blank or "0" to "14": the news are shown at the start; "15": not
  kTokyo,         ///< association that claims are submitted to in Tokyo: "5" or "6"

  kCount,
};
// The list has no numbers of its own: a name too many or too few moves one of these.
static_assert(kMarkerFolders == 2 && kMarkerCheckBox == 15 && kMarkerTextBox == 21 && kMarkerProfile == 28);
static_assert(kDoctorsPath == 53 && kAssociation == 56 && kClaims2Path == 73 && kMail == 86);
static_assert(kTokyo == 89 && kCount == 90);
}  // namespace slot

/// The fields of qv.dat in memory: those of the file and some more that are never stored.
class SettingsSlots {
 public:
  static constexpr int kFileFields = slot::kCount;

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
/// Writes the 90 fields whole: to a new file that is synced and then renamed.
text::Done writeSettingsFile(const QString& path, const SettingsSlots& settings);

}  // namespace frame

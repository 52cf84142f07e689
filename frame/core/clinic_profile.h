#pragma once

#include <QString>
#include <QStringView>
#include <array>
#include <span>

namespace frame {

/// One field of the clinic profile: its slot in qv.dat, its control on 登録, and the claim column that a
/// new claim copies it into (nullptr: none).
struct ProfileField {
  int slot;
  const char16_t* control;  ///< objectName on 登録: "Text1", "Combo1(4)"
  const char16_t* caption;
  const char16_t* claimColumn;
};

/// All fields in the order of the screen 登録. A tick or a choice stands with the control that sets it:
/// 63 is "on" with あマ含む, 17 is "4" with its option and else "3", 89 is "5" with its option and else "6".
std::span<const ProfileField> profileFields();

/// ClinicProfile: what the program knows of the practice itself, one value per slot.
class ClinicProfile {
 public:
  const QString& operator[](int slot) const { return m_values.at(static_cast<size_t>(slot)); }
  QString& operator[](int slot) { return m_values.at(static_cast<size_t>(slot)); }

 private:
  std::array<QString, 90> m_values;
};

namespace profile {
inline constexpr int kPractitioner = 29, kClinicAddress = 30, kClinicName = 31, kClinicZip = 32,
                     kPractitionerNumber = 75, kMarginNumber = 74, kPresident = 57, kAssociation = 56,
                     kMassageToo = 63, kRelationPrinted = 76, kElderlyNamePrinted = 77, kElderlyHari = 78,
                     kElderlyMassage = 79, kInstitutionHari = 82, kInstitutionMassage = 83,
                     kHealthOffice = 84, kMail = 86, kRegistration = 87;
}

}  // namespace frame

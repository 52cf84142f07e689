#include "claims/core/new_claim.h"

#include "claims/core/print_settings.h"
#include "platform/store/tables/claims.h"

namespace claims {
namespace {

/// A value of the patient and the ends of the column names that take it: 被保険者の and 療養を受ける者の.
struct PersonRow {
  const char16_t* patient;
  const char16_t* column;
};
constexpr PersonRow kPerson[] = {{u"ふりがな", u"フリガナ"}, {u"氏名", u"氏名"},
                                 {u"生年月日", u"生年月日"}, {u"性別", u"性別"},
                                 {u"郵便番号", u"郵便番号"}, {u"電話1", u"電話番号"}};

constexpr const char16_t* kRepresentative[] = {
    u"代表者氏名",         u"代表者フリガナ",         u"代表者郵便番号",   u"代表者住所",
    u"代表者住所フリガナ", u"代表者電話番号",         u"代表者金融機関名", u"代表者金融機関名種類",
    u"代表者本店支店名",   u"代表者本店支店名種類",   u"代表者預金の種類", u"代表者口座番号",
    u"代表者口座名義",     u"代表者口座名義カタカナ", u"代表者郵便局名"};

QString address(const QHash<QString, QString>& patient) {
  return patient.value(QStringLiteral("住所1")) + patient.value(QStringLiteral("住所2")) +
         patient.value(QStringLiteral("住所3"));
}

void setPerson(ClaimRecord& claim, const QString& stem, const QHash<QString, QString>& patient) {
  for (const PersonRow& row : kPerson)
    claim.set(stem + columnName(row.column), patient.value(QString::fromUtf16(row.patient)));
  claim.set(stem + QStringLiteral("住所"), address(patient));
}

void setDefaults(ClaimRecord& claim) {
  claim.set(claim::workRelated, QStringLiteral("その他"));
  claim.set(claim::thirdParty, QStringLiteral("いいえ"));
  claim.set(claim::hospitalised, QStringLiteral("入院外"));
  for (const PrintSetting& setting : printSettings())
    if (setting.newClaim) claim.set(columnName(setting.column), QString::fromUtf16(setting.newClaim));
  for (const NewClaimDefault& hidden : hiddenPrintDefaults())
    claim.set(QString::fromUtf16(hidden.column), QString::fromUtf16(hidden.value));
}

}  // namespace

ClaimRecord newClaim(const QHash<QString, QString>& patient, const NewClaimChoice& choice,
                     const frame::ClinicProfile& profile) {
  ClaimRecord claim;
  for (const char16_t* column : {u"カルテ番号", u"氏名", u"生年月日"})
    claim.set(QString::fromUtf16(column), patient.value(QString::fromUtf16(column)));
  claim.set(claim::patientSerial, patient.value(QStringLiteral("テキスト5")));
  claim.set(QStringLiteral("施術内容"),
            choice.treatment == Kind::Massage ? QStringLiteral("あマ") : QStringLiteral("鍼灸"));
  setPerson(claim, QStringLiteral("療養を受ける者の"), patient);
  if (choice.holder != CardHolder::Family) {
    setPerson(claim, QStringLiteral("被保険者の"), patient);
    claim.set(claim::relation, QStringLiteral("本人"));
  }
  if (choice.holder == CardHolder::InsuredNotHead) claim.set(claim::notHead, QStringLiteral("-1"));
  claim.set(claim::insuranceKind, choice.insurance);
  claim.set(claim::insuranceOrder, insuranceOrder(choice.insurance));
  claim.set(QString::fromUtf16(kSummaryCodeColumn),
            summaryCode(choice.insurance, claim.get(claim::relation)));
  for (const frame::ProfileField& field : frame::profileFields())
    if (field.claimColumn) claim.set(QString::fromUtf16(field.claimColumn), profile[field.slot]);
  claim.set(claim::registrationHari, profile[frame::profile::kElderlyHari]);
  claim.set(claim::registrationMassage, profile[frame::profile::kElderlyMassage]);
  setDefaults(claim);
  return claim;
}

std::span<const char16_t* const> representativeColumns() { return kRepresentative; }

}  // namespace claims

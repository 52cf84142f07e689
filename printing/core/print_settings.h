#pragma once

#include "claims/core/claim_record.h"
#include "frame/core/clinic_profile.h"

namespace printing {

/// The settings of the claim form's page 印刷設定 and the four pairs of PrintSwitches.
enum class Setting {
  PeriodFrom,       ///< 施術期間（自）: 最初の治療日 / １日
  PeriodTo,         ///< 施術期間（至）: 月末日 / 最終の治療日
  LeftMargin,       ///< 左欄外保険者名の印字
  PublicExpense,    ///< 公費負担番号の印字
  Bank,             ///< 支払機関欄: 施術者 / 代表者
  Proof,            ///< 施術証明欄: 施術者 / 代表者
  Doctor,           ///< 同意医師の欄: する / しない
  Amounts,          ///< 金額欄: する / しない
  Sex,              ///< 男女の印字
  Mandate,          ///< 委任欄（償還払い時）: 印刷する / すべて印刷しない
  MandateName,      ///< 委任欄の被保険者の氏名の印字
  Relation,         ///< 続柄の印字
  ApplicantName,    ///< 申請欄の氏名の印字
  ShareCircles,     ///< 右上の給付割合の○
  ProxyWords,       ///< 施術証明欄に代表者委任の印字
  ShareAsComputed,  ///< 一部負担金を: 標準計算 / 公費があるため０円にする
  Dates,            ///< 施術証明欄・申請欄・委任欄の年月日
  Attachment,       ///< 別添1（様式第6号）の印字
};

/// A word of PrintSwitches: "on" is する or 施術者, "off" is しない or 代表者, Empty the third button of a
/// group.
enum class Switch { Empty, On, Off };

/// The print settings as the claim keeps them. Where its column is blank, the practice's own flag rules
/// (続柄, 申請欄の氏名), else the setting's default.
class PrintSettings {
 public:
  PrintSettings(const claims::ClaimRecord& claim, const frame::ClinicProfile& profile)
      : m_claim(claim), m_profile(profile) {}

  Switch of(Setting setting) const;
  bool on(Setting setting) const { return of(setting) == Switch::On; }
  bool off(Setting setting) const { return of(setting) == Switch::Off; }

 private:
  const claims::ClaimRecord& m_claim;
  const frame::ClinicProfile& m_profile;
};

}  // namespace printing

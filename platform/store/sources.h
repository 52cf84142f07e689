#pragma once

namespace store::source {

/// Statements of the closed query subset that rules open a Cursor with, so that their text stands here and
/// not in the rooms that ask.

/// Fee editions of a file, the ruling one first.
inline constexpr char16_t kFeesNewestFirst[] = u"SELECT * FROM 料金設定 ORDER BY ID desc";
/// The registers behind the lists of the claim form.
inline constexpr char16_t kDoctors[] = u"SELECT * FROM 同意医師 ORDER BY ID";
inline constexpr char16_t kInsurers[] = u"SELECT * FROM 保険者";

/// The two readings of the consent watch.
inline constexpr char16_t kClaimsByConsent[] = u"SELECT * FROM 保険申請 ORDER BY 要加療期間2 desc";
inline constexpr char16_t kClaimsNewestFirst[] = u"SELECT * FROM 保険申請 ORDER BY ID desc";

}  // namespace store::source

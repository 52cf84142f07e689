#pragma once

namespace claims::column {

// Deprecated: these columns have their names in platform/store/tables/claims.h. For callers that still use
// the texts.

inline constexpr char16_t kSpecialArea[] = u"d2";  ///< ※特別地域（加算）での施術, "1" or "0"
inline constexpr char16_t kElectricNeedle[] = u"c21";       ///< １．電気鍼, "1" or "0"
inline constexpr char16_t kElectricMoxa[] = u"c22";         ///< ２．電気温灸器, "1" or "0"
inline constexpr char16_t kElectricLight[] = u"c23";        ///< ３．電気光線器具, "1" or "0"
inline constexpr char16_t kDelegated[] = u"c24";            ///< 受領委任 (Check50), "1" or "0"
inline constexpr char16_t kNewRemarks[] = u"memodummy14";   ///< 新摘要欄
inline constexpr char16_t kConsentNote[] = u"memodummy11";  ///< printed after 同意の傷病名
inline constexpr char16_t kSummaryKind[] = u"c12";          ///< 総括表の種別 (Text50)

}  // namespace claims::column

#pragma once

#include <array>

// The fixed lists of the combo boxes of the claim form, in their order.
namespace claims::list {

inline constexpr std::array kShare = {u"1割", u"2割", u"3割"};
/// 保険の種類3, the printed kind.
inline constexpr std::array kPrintedInsurance = {u"全国健康保険協会", u"組合健保", u"日雇健保", u"船員保険",
                                                 u"国民健保",         u"退職者",   u"共済組合", u"後期高齢",
                                                 u"自衛隊等",         u"公費負担", u"自費"};
/// 官職宛名, column c6.
inline constexpr std::array kAddressee = {u"国民健康保険組合長",
                                          u"後期高齢者医療広域連合長",
                                          u"全国健康保険協会支部長",
                                          u"健康保険組合長",
                                          u"共済組合長",
                                          u"市町村長",
                                          u"市長",
                                          u"町長",
                                          u"村長",
                                          u" "};
inline constexpr std::array kSex = {u"男", u"女"};
inline constexpr std::array kRequestKind = {u"新規", u"継続"};
inline constexpr std::array kOutcome = {u"継続", u"治癒", u"中止", u"転医"};
inline constexpr std::array kDeposit = {u"", u"普通", u"当座", u"通知", u"別段"};
inline constexpr std::array kBankKind = {u"", u"銀行", u"金庫", u"農協"};
inline constexpr std::array kBranchKind = {u"", u"本店", u"支店", u"出張所"};
inline constexpr std::array kPayment = {u"", u"振込", u"銀行送金", u"郵便局送金", u"当地払"};
inline constexpr std::array kCause = {u"業務上", u"第三者行為である", u"その他"};
inline constexpr std::array kThirdParty = {u"はい", u"いいえ"};
inline constexpr std::array kHospital = {u"入院外", u"入院"};
inline constexpr std::array kConsentSymptom = {u"下肢筋力低下", u"関節拘縮", u"起立不能", u"筋萎縮",
                                               u"全日往療"};
/// d15, 往療又は訪問の理由.
inline constexpr std::array kVisitReason = {u"独歩による公共交通機関を使っての外出困難",
                                            u"認知症や視覚、内部、精神障害などにより独歩による外出困難",
                                            u"その他", u"①と②の両方に丸をつける。"};
/// The regional pair of lists of one region's form.
inline constexpr std::array kRegionalInsurance = {u"後期高齢者医療保険 京都府下",
                                                  u"後期高齢者医療保険 他府県",
                                                  u"国民健康保険 京都市一般",
                                                  u"国民健康保険 京都市退職者",
                                                  u"国民健康保険 京都市以外",
                                                  u"国民健康保険　特別・職域",
                                                  u"全国健康保険協会 京都支部",
                                                  u"全国健康保険協会 他府県",
                                                  u"組合保険",
                                                  u"共済保険"};
inline constexpr std::array kRegionalWelfare = {u"福祉医療 ひとり親",   u"福祉医療 障害",
                                                u"福祉医療 老人医療",   u"福祉医療 乳幼児",
                                                u"福祉医療 健康管理費", u"生活保護"};
/// What the list of an empty register says.
inline constexpr char16_t kNoDoctors[] = u"同意医師のデータがありません";
inline constexpr char16_t kNoInsurerNames[] = u"名称のデータがありません";
inline constexpr char16_t kNoInsurerNumbers[] = u"番号のデータがありません";

}  // namespace claims::list

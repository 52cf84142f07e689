#pragma once

#include <array>

namespace claims {

/// The columns by which the claim list is searched and sorted, in the order in which they are offered.
inline constexpr std::array<const char16_t*, 20> kListKeys = {
    u"申請年月",
    u"氏名",
    u"生年月日",
    u"保険の種類",
    u"保険証番号1",
    u"被保険者のフリガナ",
    u"被保険者の氏名",
    u"被保険者の生年月日",
    u"療養を受ける者のフリガナ",
    u"療養を受ける者の氏名",
    u"療養を受ける者の生年月日",
    u"事業所の名称",
    u"事業所の所在地",
    u"保険者番号",
    u"初療年月日",
    u"同意医師住所",
    u"同意医師氏名",
    u"同意の年月日",
    u"申請月",
    u"要加療期間2",
};

}  // namespace claims

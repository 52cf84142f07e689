#pragma once

#include "platform/store/column.h"

// The registers that feed the lists of the claim form.

namespace doctors {

namespace detail {
using enum store::ColumnType;
inline constexpr store::ColumnsText kTableText[] = {{Text255, false, u"フリガナ,氏名,病院名,TEL,住所"}};
inline constexpr auto kTableRows = store::columnRows<kTableText>();
}  // namespace detail

/// Consenting doctors.
inline constexpr store::Table table(u"同意医師", detail::kTableRows);

inline constexpr store::Column id = table[u"ID"];
inline constexpr store::Column kana = table[u"フリガナ"];
inline constexpr store::Column name = table[u"氏名"];
inline constexpr store::Column hospital = table[u"病院名"];
inline constexpr store::Column telephone = table[u"TEL"];
inline constexpr store::Column address = table[u"住所"];

}  // namespace doctors

namespace insurers {

namespace detail {
using enum store::ColumnType;
inline constexpr store::ColumnsText kTableText[] = {{Text255, false, u"名称,番号,所在地"}};
inline constexpr auto kTableRows = store::columnRows<kTableText>();
}  // namespace detail

/// Insurers.
inline constexpr store::Table table(u"保険者", detail::kTableRows);

inline constexpr store::Column id = table[u"ID"];
inline constexpr store::Column name = table[u"名称"];
inline constexpr store::Column number = table[u"番号"];
inline constexpr store::Column address = table[u"所在地"];

}  // namespace insurers

#pragma once

#include "platform/store/column.h"

// 経穴: the acupoint dictionary. CLmoji, CL2moji: the phrases of the practice.

namespace acupoints {

namespace detail {
using enum store::ColumnType;
inline constexpr store::ColumnsText kTableText[] = {
    {Text255, false,
     u"経穴名漢字,経穴名かな,取穴位置,筋肉,運動神経,知覚神経,血管,刺入方法,主適応,部位,経絡コード"},
    {YesNo, false, u"禁鍼フラグ,禁灸フラグ"}};
inline constexpr auto kTableRows = store::columnRows<kTableText>();
}  // namespace detail

/// The acupoint dictionary.
inline constexpr store::Table table(u"経穴", detail::kTableRows);

inline constexpr store::Column id = table[u"ID"];
inline constexpr store::Column name = table[u"経穴名漢字"];
inline constexpr store::Column kana = table[u"経穴名かな"];
inline constexpr store::Column location = table[u"取穴位置"];
inline constexpr store::Column muscle = table[u"筋肉"];
inline constexpr store::Column motorNerve = table[u"運動神経"];
inline constexpr store::Column sensoryNerve = table[u"知覚神経"];
inline constexpr store::Column vessel = table[u"血管"];
inline constexpr store::Column needling = table[u"刺入方法"];
inline constexpr store::Column indications = table[u"主適応"];
inline constexpr store::Column region = table[u"部位"];
inline constexpr store::Column meridian = table[u"経絡コード"];
inline constexpr store::Column noNeedle = table[u"禁鍼フラグ"];
inline constexpr store::Column noMoxa = table[u"禁灸フラグ"];

}  // namespace acupoints

namespace phrases {

namespace detail {
using enum store::ColumnType;
inline constexpr store::ColumnsText kTableText[] = {{Text255, false, u"moji"}};
inline constexpr auto kTableRows = store::columnRows<kTableText>();
}  // namespace detail

/// Phrases of the long texts.
inline constexpr store::Table table(u"CLmoji", detail::kTableRows);

inline constexpr store::Column id = table[u"ID"];
inline constexpr store::Column phrase = table[u"moji"];

}  // namespace phrases

namespace phrasePairs {

namespace detail {
using enum store::ColumnType;
inline constexpr store::ColumnsText kTableText[] = {{Text255, false, u"setu1,setu2"}};
inline constexpr auto kTableRows = store::columnRows<kTableText>();
}  // namespace detail

/// Phrases with a heading.
inline constexpr store::Table table(u"CL2moji", detail::kTableRows);

inline constexpr store::Column id = table[u"ID"];
inline constexpr store::Column heading = table[u"setu1"];
inline constexpr store::Column phrase = table[u"setu2"];

}  // namespace phrasePairs

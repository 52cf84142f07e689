#include "tests/program/screen_roads.h"

namespace program {
namespace {

constexpr char16_t kPatient[] = u"治療台帳4";
constexpr char16_t kLedger[] = u"治療台帳3";
constexpr char16_t kBookings[] = u"今日の予約";
constexpr char16_t kTakings[] = u"集計";
constexpr char16_t kClaimList[] = u"レセプト一覧表";
constexpr char16_t kClaimForm[] = u"frmレセプトフォーム";

constexpr Step kToLedger{kPatient, u"Command4"};
constexpr Step kNextClaim{kClaimList, u"DBGrid1", Qt::Key_Down};
constexpr Step kToClaim{kClaimList, u"Command1"};

const Road kRoads[] = {
    {kPatient},
    {u"治療台帳2", {{kPatient, u"Command2"}}},
    {kLedger, {kToLedger}},
    {kLedger, {kToLedger, {kLedger, u"Check1"}}, u"_claim"},
    {u"一覧表"},
    {u"frm経穴"},
    {u"frmCLmoji"},
    {u"frmCl2moji"},
    {kBookings},
    {u"予約週間表"},
    {u"予約2", {{kBookings, u"DBGrid1", Qt::Key_Return}}},
    {kTakings},
    {u"集計総合金額", {{kTakings, u"Command2"}}},
    {u"新規レセプト", {{kPatient, u"Command6"}}},
    {kClaimList},
    {kClaimForm, {kToClaim}},
    {kClaimForm, {kNextClaim, kToClaim}, u"_massage"},
    {u"レセプト印刷2024", {kToClaim, {kClaimForm, u"Command5"}}},
    {u"施術料金2024H", {kToClaim, {kClaimForm, u"Command2"}}},
    {u"施術料金2024A", {kNextClaim, kToClaim, {kClaimForm, u"Command2"}}},
    {u"登録2", {kToClaim, {kClaimForm, u"Command12"}}},
    {u"登録3", {kToClaim, {kClaimForm, u"Command14"}}},
    {u"同意期限一ヶ月"},
    {u"料金変更"},
    {u"登録"},
    {u"登録4"},
    {u"txtbox"},
};

}  // namespace

std::span<const Road> screenRoads() { return kRoads; }

}  // namespace program

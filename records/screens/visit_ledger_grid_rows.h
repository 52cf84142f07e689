#pragma once

#include "claims/core/form_lists.h"
#include "platform/screen/rows.h"
#include "platform/store/tables/claims.h"
#include "records/screens/visit_ledger_screen.h"

// The rows of the visit ledger's day grid 療養費の日付の記入: the claim of a month and its days.

namespace records::visit_ledger_rows {

using namespace screen;
using Ledger = VisitLedgerScreen;

inline constexpr char16_t kGridMenu[] = u"レセプト日付表示(&D)";

inline constexpr GridColumn kFirstHalves[] = {
    {claim::month, u"申請年月"},
    {claim::treatmentKind, u"施術内容"},
    {claim::insuranceKind, u"保険の種類"},
    {claim::requestKind, u"請求区分"},
    {claim::firstTreatment, u"初療年月日"},
    {claim::id, u"ID"},
};
inline constexpr GridColumn kSecondHalves[] = {
    {claim::secondId, u"ID"},
    {claim::reportDate, u"施術報告書交付年月日"},
    {claim::lastReportMonth, u"前回の施術報告書交付年月"},
};

consteval Check tick(const char16_t* name, const char16_t* caption, store::Column column,
                     const char16_t* tip = nullptr) {
  return Check{.name = {name}, .caption = caption, .bind = column, .tip = tip};
}

/// Fields of the claim that are shown here and changed on the claim form only.
consteval TextField readOnlyField(ControlName name, const char16_t* caption, store::Column column) {
  return TextField{.name = name, .caption = caption, .bind = column, .width = 12, .readOnly = true};
}

inline constexpr Row kGridRows[] = {
    Bar{},
    TextField{.name = {u"txtFields", 115},
              .caption = u"抽出請求年月:",
              .bind = Unbound{u"the month whose claim is looked for"},
              .width = 12,
              .tip = u"この年月のレセプトに日付を記入します。",
              .onEnter = call<&Ledger::gridMonthEntered>},
    Check{.name = {u"Check1"},
          .caption = u"療養費の日付の記入",
          .bind = Unbound{u"shows and hides the day grid"},
          .onToggle = call<&Ledger::gridToggled>},
    Entry{.name = {u"Men_DT"},
          .under = kGridMenu,
          .caption = u"療養費の日付の記入",
          .run = run<&Ledger::toggleGrid>},
    EndBar{},

    Group{.name = {u"Frame1"}, .caption = u"療養費の日付", .columns = 2},
    Group{.name = {u"FrameClaim"}, .caption = u"レセプトの項目", .columns = 4},
    readOnlyField({u"txtFields", 114}, u"データの請求年月:", claim::month),
    // The kind that the claim was made with; 施術科目 itself is blank until the claim was stored once.
    readOnlyField({u"txtFields", 67}, u"施術科目:", claim::treatmentKind),
    readOnlyField({u"Text8"}, u"保険の種類:", claim::insuranceKind),
    TextField{
        .name = {u"txtFields", 20}, .caption = u"被保険者との続柄:", .bind = claim::relation, .width = 12},
    Combo{.name = {u"Combo1"},
          .caption = u"一部負担金:",
          .bind = claim::shareRate,
          .items = claims::list::kShare,
          .editable = true,
          .width = 6},
    TextField{
        .name = {u"txtFields", 32}, .caption = u"初療年月日:", .bind = claim::firstTreatment, .width = 16},
    Check{.name = {u"chkFields", 38}, .caption = u"初回有無", .bind = claim::hasFirst},
    tick(u"yn2", u"施術報告書交付", claim::report),
    tick(u"yn3", u"施術報告書を２通交付した", claim::reportTwice),
    tick(u"yn4", u"３通の施術報告書を交付した", claim::reportThrice),
    Check{.name = {u"chkFields", 39},
          .caption = u"※特別地域に移住する患者へ施術",
          .bind = claim::specialArea,
          .on = u"1",
          .off = u"0"},
    EndGroup{},
    Bar{},
    Note{.name = {u"Label13"}, .caption = u"施術日"},
    Note{.name = {u"Label15"}, .caption = u"治療内容"},
    Note{.name = {u"Label16"}, .caption = u"往療距離"},
    EndBar{},
    Group{.name = {u"FrameCodes"}, .caption = u"治療内容", .columns = 2},
    TextRun{.name = {u"Text5", 0},
            .count = 31,
            .caption = u"%1日 治療内容",
            .bind = claim::dayCode,
            .limit = 4,
            .perLine = 10,
            .onLeave = call<&Ledger::codeLeft>},
    EndGroup{},
    Group{.name = {u"Label9"}, .caption = u"往療距離", .columns = 2},
    TextRun{.name = {u"Text6", 0},
            .count = 31,
            .caption = u"%1日 往療距離",
            .bind = claim::dayVisit,
            .limit = 4,
            .perLine = 10,
            .onLeave = call<&Ledger::visitLeft>},
    EndGroup{},
    Bar{},
    Note{.name = {u"Label5"}, .caption = u"日付を記入したら、「登録」を押してください。"},
    Command{.name = {u"Command11"},
            .caption = u"登録",
            .run = run<&Ledger::storeGrid>,
            .say = u"療養費の日付の登録"},
    EndBar{},
    Grid{.name = {u"DBGrid2"}, .caption = u"レセプトの一覧表", .columns = kFirstHalves},
    Grid{.name = {u"DBGrid3"}, .caption = u"レセプトの後半の一覧表", .columns = kSecondHalves},
    EndGroup{},
};

}  // namespace records::visit_ledger_rows

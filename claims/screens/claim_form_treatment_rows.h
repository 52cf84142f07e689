#pragma once

#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"
#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "platform/store/tables/claims.h"

namespace claims::form {

using namespace screen;
using Form = ClaimFormScreen;
namespace unbuilt = routes::unbuilt;

inline constexpr char16_t kTwoPapersTip[] =
    u"施術報告を、今月は徒手矯正術を２通もしくはマ術と徒手矯正術の２通を交付した場合はチェックをいれる";
inline constexpr char16_t kThreePapersTip[] =
    u"施術報告を、今月は徒手矯正術を２通とマ術と合わせて３通を交付した場合はチェックをいれる";

/// A tick of the report group.
constexpr Check report(ControlName name, Words caption, Binding bind, const char16_t* tip = nullptr,
                       Handler toggled = nullptr) {
  Check row = rows::tick(name, caption, bind, nullptr, toggled);
  row.tip = tip;
  return row;
}

/// Page 治療.
inline constexpr Row kTreatment[] = {
    Page{u"治療"},
    Group{{u"FrameCodes"}, u"治療内容", 2},
    TextRun{.name = {u"Text5", 1},
            .count = 31,
            .caption = u"%1日 治療内容",
            .bind = claim::dayCode,
            .limit = 4,
            .perLine = 11,
            .onLeave = call<&Form::codeLeft>,
            .onEdit = call<&Form::gridEdited>},
    EndGroup{},
    Group{{u"Label9"}, u"往療人数", 2},
    TextRun{.name = {u"Text6", 1},
            .count = 31,
            .caption = u"%1日 往療人数",
            .bind = claim::dayVisit,
            .limit = 4,
            .perLine = 11,
            .onLeave = call<&Form::visitLeft>,
            .onEdit = call<&Form::gridEdited>},
    EndGroup{},
    Bar{},
    Check{.name = {u"Check8"},
          .caption = u"訪問で同一患者の場合で、訪問料金を加算しない場合は、チェックを入れてください。"
                     u"（往診人数欄は、空白にしてください。）申請書の日付を◎にします。",
          .bind = Unbound{u"a switch of the next print"},
          .tip = u"同一日に、鍼灸とマッサージを行い、チェックを入れた場合は、適応欄に必要事項を記載する必要が"
                 u"あります。"},
    EndBar{},
    Group{{u"FrameTreatment"}, u"施術", 4},
    rows::tick({u"chkFields", 38}, u"初回有無", claim::hasFirst),
    rows::flag({u"chkFields", 39}, u"※特別地域（加算）での施術", claim::specialArea),
    rows::list({u"Combo1", 40}, u"請求区分:", claim::requestKind),
    rows::list({u"Combo1", 41}, u"転帰:", claim::outcome),
    rows::field({u"txtFields", 109}, u"請求転帰:", claim::requestOutcome, 8),
    rows::field({u"txtFields", 103}, u"請求年月日:", claim::requestDate, 16),
    rows::field({u"txtFields", 104}, u"領収年月日:", claim::receiptDate, 16),
    rows::field({u"txtFields", 102}, u"実際の距離:", claim::realDistance, 6,
                u"※加算の所で２・４・６以外の０．５・１．５等を印刷したい時だけ記入する"),
    rows::flag({u"chkFields", 6}, u"１．電気鍼", claim::electricNeedle),
    rows::flag({u"chkFields", 7}, u"２．電気温灸器", claim::electricMoxa),
    rows::flag({u"chkFields", 8}, u"３．電気光線器具", claim::electricLight),
    rows::field({u"txtFields", 100}, u"マッサージ部位数:", claim::areaCount, 4),
    rows::field({u"txtFields", 101}, u"徒手矯正数:", claim::limbCount, 4),
    EndGroup{},
    Group{{u"FramePlace"}, u"往療・訪問の場所と理由", 2},
    TextField{.name = {u"txtFields", 105},
              .caption = u"施術した場所:",
              .bind = claim::treatmentPlace,
              .limit = 58,
              .width = 40},
    rows::list({u"Combo1", 42}, u"往療又は訪問の理由:", claim::visitReason),
    rows::list({u"Combo1", 43}, u"往療又は訪問の理由 その他の内容:", claim::visitReasonOther),
    EndGroup{},
    Group{{u"FrameReport"}, u"施術報告書", 3},
    report({u"Check11"}, u"施術報告書交付", claim::report, nullptr, call<&Form::reportToggled>),
    report({u"Check12"}, u"施術報告書を２通交付した", claim::reportTwice, kTwoPapersTip),
    report({u"Check14"}, u"３通の施術報告書を交付した", claim::reportThrice, kThreePapersTip),
    rows::field({u"txtFields", 107}, u"施術報告書交付年月日（必須）:", claim::reportDate, 16),
    rows::field({u"txtFields", 108}, u"前回の施術報告書交付年月:", claim::lastReportMonth, 16,
                u"（記入例）令和6年5月"),
    Check{.name = {u"Check17"},
          .caption = u"元号のRの追加",
          .bind = Unbound{u"a switch of the next print"},
          .tip = u"前回の施術報告書交付年月に元号のＲを印刷したい場合にチェックを入れてください。"},
    EndGroup{},
    Note{.name = {u"LabelClosed"},
         .caption =
             u"注：平成30年10月以前のレセプトデータでは、「施術報告書印刷」及び「往療内訳表」の入力と印刷は"
             u"できません。"},
    Bar{},
    Command{.name = {u"Command32"}, .caption = u"施術料金計算", .run = run<&Form::previewFees>},
    Command{.name = {u"Command8"},
            .caption = u"住所代入→",
            .run = run<&Form::openOnClaim<unbuilt::VisitAddresses>>},
    Command{
        .name = {u"Command19"}, .caption = u"日付代入→", .run = run<&Form::openOnClaim<unbuilt::VisitDates>>},
    EndBar{},
};

/// Page 治療, the rows of 往療内訳.
inline constexpr Row kVisitTable[] = {
    Note{.name = {u"LabelNoTable"},
         .caption = u"※令和6年10月施術分以降、往療内訳表の印刷・提出は、必要なくなりました。"},
    report({u"Check10"}, u"往療内訳の表示", claim::showVisitTable, nullptr, call<&Form::visitTableToggled>),
    report({u"Check15"}, u"右欄外に印刷する", claim::printInMargin),
    Group{{u"FrameStarts"}, u"往療起点", 2},
    TextRun{.name = {u"TextStart", 1},
            .count = 31,
            .caption = u"%1日 往療起点",
            .bind = claim::visitStart,
            .perLine = 11,
            .tip = u"その日の往療の起点を、半角数字で記入してください。"},
    EndGroup{},
    Group{{u"FrameSameHouse"}, u"同一建物", 2},
    TextRun{.name = {u"TextSame", 1},
            .count = 31,
            .caption = u"%1日 同一建物",
            .bind = claim::sameBuilding,
            .perLine = 11,
            .tip = u"同一日に同一建物への往療に該当する場合に記入してください。"},
    EndGroup{},
};

}  // namespace claims::form

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

/// Page 各種印刷.
inline constexpr Row kPrints[] = {
    Page{u"各種印刷"},
    Group{{u"FramePrints"}, u"印刷", 3},
    Command{.name = {u"Command3"},
            .caption = u"施術録印刷",
            .run = run<&Form::printRecord>,
            .menu = u"Men_Precord",
            .under = u"計算と印刷(&P)"},
    Command{.name = {u"Command22"},
            .caption = u"領収証印刷",
            .run = run<&Form::openToPrint<unbuilt::ReceiptChoice>>,
            .menu = u"Men_Preceipt",
            .under = u"計算と印刷(&P)"},
    Command{.name = {u"Command23"},
            .caption = u"施術報告書印刷",
            .run = run<&Form::openReport>,
            .menu = u"Men_Preport",
            .under = u"計算と印刷(&P)"},
    Command{
        .name = {u"Command21"}, .caption = u"1年・月16回以上の理由書印刷", .run = run<&Form::openReasons>},
    Command{.name = {u"Command30"},
            .caption = u"頻回な施術を必要とした詳細な理由及び今後の計画書",
            .run = run<&Form::openToPrint<unbuilt::FrequentPlan>>},
    Command{
        .name = {u"Command34"}, .caption = u"新摘要欄", .run = run<&Form::openOnClaim<unbuilt::NewRemarks>>},
    Command{.name = {u"Command7"}, .caption = u"カルテ3へ", .run = run<&Form::openPictureChart>},
    Command{.name = {u"Command33"},
            .caption = u"メモデータ変換",
            .run = run<&Form::openOnClaim<unbuilt::MemoConversion>>},
    Command{.name = {u"Command10"}, .caption = u"プリンターオプション", .run = run<&Form::printerOptions>},
    EndGroup{},
    Group{{u"FrameRoutes"}, u"往療内訳表", 2},
    Command{.name = {u"Command24"}, .caption = u"往療内訳表の印刷", .run = run<&Form::openVisitTable>},
    Command{.name = {u"Command20"},
            .caption = u"往療内訳の記入の仕方",
            .run = run<&Form::openOnClaim<unbuilt::RouteHelp>>},
    Command{.name = {u"Command29"},
            .caption = u"施術報告書と往療内訳表の印刷についての音声ガイド",
            .run = run<&Form::speakPrintGuide>},
    EndGroup{},
    Note{.name = {u"LabelGuide", 0},
         .caption = u"往療の起点については、個人宅は丁目までの記載で可なので代入した場合は、削除等で書き換え"
                    u"てください。"},
    Note{.name = {u"LabelGuide", 1}, .caption = u"空白のままだと往療の起点の欄は、空白になります。"},
    Note{.name = {u"LabelGuide", 2},
         .caption = u"※令和6年10月施術分以降、往療内訳表の印刷・提出は、必要なくなりました。"},
    Group{{u"FrameStartPoints"}, u"往療起点の登録", 1},
    rows::field({u"txtFields", 120}, u"往療起点の登録1:", claim::startPoint[1], 50),
    rows::field({u"txtFields", 121}, u"往療起点の登録2:", claim::startPoint[2], 50),
    rows::field({u"txtFields", 122}, u"往療起点の登録3:", claim::startPoint[3], 50),
    Command{.name = {u"Command25"},
            .caption = u"↓ 起点の代入",
            .run = run<&Form::openOnClaim<unbuilt::StartPointAddresses>>},
    Command{.name = {u"Command26"},
            .caption = u"往療起点の登録の確認表示",
            .run = run<&Form::openOnClaim<unbuilt::StartPoints>>},
    EndGroup{},
    Group{{u"FrameReportNotes"}, u"新摘要欄", 1},
    TextField{.name = {u"Text25"},
              .caption = u"新摘要欄の内容:",
              .bind = claim::newRemarks,
              .limit = 500,
              .width = 60,
              .lines = 4,
              .tip = u"５００文字対応の摘要欄の入力が可能。"},
    EndGroup{},
};

}  // namespace claims::form

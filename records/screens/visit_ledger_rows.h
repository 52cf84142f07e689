#pragma once

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/screen/opens.h"
#include "platform/store/tables/visits.h"
#include "records/screens/visit_ledger_grid_rows.h"

// The rows of the visit ledger - one visit, the list of visits, the commands, then the day grid - and its
// controls that the handlers use.

namespace records::visit_ledger_rows {

inline constexpr char16_t kFile[] = u"ファイル(&F)";
inline constexpr char16_t kView[] = u"表示(&V)";
inline constexpr char16_t kPrevious[] = u"前回同様(&Z)";
inline constexpr char16_t kReceipt[] = u"領収証印刷(&R)";
/// The separator between two spoken texts is U+00FE.
inline constexpr char16_t kListSay[] =
    u"治療の一覧表\u00FE右カーソルキーを押し、上カーソルキーで前回分を音声致します";
inline constexpr char16_t kMonthHelp[] =
    u"※１年分の場合は、この欄に「令和2年」とだけ入力すると、令和2年のみ表示されます。";
inline constexpr char16_t kDetailHelp[] =
    u"カルテ２詳細データで「前回同様」を使用する際には、「新規追加」を押す前に、前回を下の一覧で選択してから"
    u"「新規追加」→「登録」→「カルテ２詳細データ」のボタンを押し、カルテ２詳細データへ移行してください。";

consteval TextField field(int index, const char16_t* caption, store::Column column, int width = 12) {
  return TextField{
      .name = {u"txtFields", index}, .caption = caption, .bind = column, .limit = 50, .width = width};
}

inline constexpr GridColumn kListed[] = {
    {visits::date, u"治療日"},      {visits::summary, u"治療概略"}, {visits::insurerPays, u"保険者負担金"},
    {visits::share, u"一部負担金"}, {visits::fee, u"治療金額"},     {visits::receiptDone, u"領収証チェック"},
    {visits::isNew, u"新患"},       {visits::name, u"氏名"},        {visits::birth, u"生年月日"},
};

inline constexpr Row kVisitRows[] = {
    Group{.name = {u"FrameVisit"}, .caption = u"治療の記録", .columns = 5},
    field(0, u"氏名:", visits::name, 20),
    field(1, u"生年月日:", visits::birth, 16),
    field(2, u"治療日:", visits::date, 16),
    field(4, u"保険者負担金:", visits::insurerPays),
    field(5, u"一部負担金:", visits::share),
    field(6, u"治療金額:", visits::fee),
    Check{.name = {u"chkFields", 7}, .caption = u"領収証チェック", .bind = visits::receiptDone},
    Check{.name = {u"chkFields", 8}, .caption = u"新患チェック", .bind = visits::isNew},
    TextField{.name = {u"txtFields", 3},
              .caption = u"治療概略:",
              .bind = visits::summary,
              .limit = 250,
              .width = 60,
              .lines = 2},
    TextField{.name = {u"Text3"}, .caption = u"ID:", .bind = visits::id, .width = 8, .readOnly = true},
    TextField{
        .name = {u"Text2"}, .caption = u"ETC1:", .bind = visits::patientSerial, .width = 8, .readOnly = true},
    TextField{.name = {u"Text10"},
              .caption = u"治療日チェック:",
              .bind = visits::dateShadow,
              .width = 8,
              .readOnly = true},
    EndGroup{},

    Bar{},
    Command{.name = {u"cmdAdd"},
            .caption = u"新規追加",
            .run = run<&Ledger::addVisit>,
            .menu = u"Men_FA",
            .under = kFile},
    Command{.name = {u"cmdUpdate"}, .caption = u"登録", .run = run<&Ledger::storeVisit>},
    // On purpose the entry stores without the message; the result is only said.
    Entry{.name = {u"Men_FU"}, .under = kFile, .caption = u"登録", .run = run<&Ledger::storeVisitQuietly>},
    Command{.name = {u"cmdDelete"},
            .caption = u"削除",
            .run = run<&Ledger::deleteVisit>,
            .menu = u"Men_FD",
            .under = kFile,
            .menuCaption = u"表示患者の削除"},
    Command{.name = {u"cmdClose"},
            .caption = u"閉じる",
            .run = run<&Ledger::leave>,
            .menu = u"Men_FEnd",
            .under = kFile},
    Command{.name = {u"Command1"},
            .caption = u"今日の日付を代入",
            .run = run<&Ledger::fillToday>,
            .menu = u"Men_VT",
            .under = kView,
            .menuCaption = u"今日の日付を治療日に代入"},
    Command{.name = {u"Command8"},
            .caption = u"今日の日付",
            .run = run<&Ledger::copyToday>,
            .tip = u"今日の日付をクリップボードへコピーします。"},
    Command{.name = {u"Command3"}, .caption = u"西暦", .run = run<&Ledger::toSeireki>},
    Command{.name = {u"Command9"}, .caption = u"和暦", .run = run<&Ledger::toWareki>},
    EndBar{},

    Group{.name = {u"FrameSummary"}, .caption = u"治療概要", .columns = 1},
    Command{.name = {u"Command4"},
            .caption = u"前回同様",
            .run = run<&Ledger::copySummary>,
            .menu = u"Men_ZS",
            .under = kPrevious,
            .menuCaption = u"治療概要に前回同様",
            .say = u"治療概要に前回同様"},
    EndGroup{},
    Group{.name = {u"FrameAmounts"}, .caption = u"全金額", .columns = 1},
    Command{.name = {u"Command5"},
            .caption = u"前回同様",
            .run = run<&Ledger::copyAmounts>,
            .menu = u"Men_ZA",
            .under = kPrevious,
            .menuCaption = u"全金額に前回同様",
            .say = u"全金額に前回同様"},
    EndGroup{},
    Bar{},
    Command{.name = {u"Command14"},
            .caption = u"カルテ２詳細データ",
            .run = run<&Ledger::openDetail>,
            .tip = kDetailHelp},
    Command{.name = {u"Command12"},
            .caption = u"領収証印刷",
            .run = run<&Ledger::openReceipt>,
            .menu = u"Men_RP",
            .under = kReceipt},
    Command{.name = {u"Command10"}, .caption = u"明細領収証印刷", .run = run<&Ledger::openDetailedReceipt>},
    EndBar{},
    Note{.name = {u"Label6"}, .caption = kDetailHelp},

    Group{.name = {u"FrameView"}, .caption = u"治療の一覧", .columns = 2},
    Bar{},
    Note{.name = {u"Data1"}, .caption = u"ﾚｺｰﾄﾞ: "},
    Note{.name = {u"LabelCount"}, .caption = u"治療回数:"},
    Note{.name = {u"Label14"}, .caption = u"0"},
    TextField{.name = {u"Text1"},
              .caption = u"表示する年月:",
              .bind = Unbound{u"the month to show"},
              .width = 12,
              .tip = kMonthHelp,
              .onEnter = call<&Ledger::narrowToMonth>},
    Command{.name = {u"Command6"},
            .caption = u"指定月のみ表示",
            .run = run<&Ledger::narrowToMonth>,
            .menu = u"Men_VM",
            .under = kView},
    Command{.name = {u"Command7"},
            .caption = u"全表示に戻す",
            .run = run<&Ledger::showPatient>,
            .menu = u"Men_VA",
            .under = kView},
    Command{.name = {u"cmdRefresh"},
            .caption = u"全患者表示及び再表示",
            .run = run<&Ledger::showAll>,
            .tip = u"元の全ての患者表示に変わります。"},
    Command{.name = {u"Command2"},
            .caption = u"総合金額",
            .run = run<&Ledger::showTotals>,
            .menu = u"Men_VS",
            .under = kView},
    Command{.name = {u"Command13"}, .caption = u"並び替え", .run = opens<routes::SortVisits>},
    Command{.name = {u"Command15"}, .caption = u"抽出", .run = opens<routes::SearchVisits>},
    EndBar{},
    Note{.name = {u"LabelMonth"}, .caption = kMonthHelp},
    Grid{.name = {u"DBGrid1"}, .caption = u"治療の一覧表", .columns = kListed, .say = kListSay},
    EndGroup{},
};

inline constexpr auto kRows = joined(kVisitRows, kGridRows);
inline constexpr Sources kSources = {visits::table, claim::secondHalf, claim::firstHalf};
inline constexpr ScreenRow kDeclaration = declare({.name = routes::VisitLedger::screen,
                                                   .caption = u"カルテ",
                                                   .rows = kRows,
                                                   .sources = kSources,
                                                   .functionKeys = true});

// Numbers of the sources.
inline constexpr int kVisits = kSources.numberOf(&visits::table);
inline constexpr int kSecondHalf = kSources.numberOf(&claim::secondHalf);
inline constexpr int kFirstHalf = kSources.numberOf(&claim::firstHalf);

// The visit.
inline constexpr ControlRef kName = ref(kRows, u"txtFields", 0);
inline constexpr ControlRef kBirth = ref(kRows, u"txtFields", 1);
inline constexpr ControlRef kDate = ref(kRows, u"txtFields", 2);
inline constexpr ControlRef kSummary = ref(kRows, u"txtFields", 3);
inline constexpr ControlRef kInsurerPays = ref(kRows, u"txtFields", 4);
inline constexpr ControlRef kShare = ref(kRows, u"txtFields", 5);
inline constexpr ControlRef kFee = ref(kRows, u"txtFields", 6);
/// The controls that can be filled in.
inline constexpr ControlRef kVisitFields[] = {kName,
                                              kBirth,
                                              kDate,
                                              kSummary,
                                              kInsurerPays,
                                              kShare,
                                              kFee,
                                              ref(kRows, u"chkFields", 7),
                                              ref(kRows, u"chkFields", 8)};
inline constexpr ControlRef kSerial = ref(kRows, u"Text2");
inline constexpr ControlRef kId = ref(kRows, u"Text3");
inline constexpr ControlRef kDateShadow = ref(kRows, u"Text10");

// The list.
inline constexpr ControlRef kList = ref(kRows, u"DBGrid1");
inline constexpr ControlRef kPosition = ref(kRows, u"Data1");
inline constexpr ControlRef kCountLabel = ref(kRows, u"LabelCount");
inline constexpr ControlRef kCount = ref(kRows, u"Label14");
inline constexpr ControlRef kMonthOnView = ref(kRows, u"Text1");

// The day grid.
inline constexpr ControlRef kGridTick = ref(kRows, u"Check1");
inline constexpr ControlRef kGridFrame = ref(kRows, u"Frame1");
inline constexpr ControlRef kMonthOfClaim = ref(kRows, u"txtFields", 115);  ///< the month that is looked for
inline constexpr ControlRef kClaimMonth = ref(kRows, u"txtFields", 114);
inline constexpr ControlRef kTreatmentKind = ref(kRows, u"txtFields", 67);
inline constexpr ControlRef kFirstTreatment = ref(kRows, u"txtFields", 32);
/// The captions of the row of visits.
inline constexpr ControlRef kVisitCaptions[] = {ref(kRows, u"Label9"), ref(kRows, u"Label16")};
inline constexpr FamilyRef kCodes = family(kRows, u"Text5");
inline constexpr FamilyRef kVisitCells = family(kRows, u"Text6");
inline constexpr int kCells = 31;

}  // namespace records::visit_ledger_rows

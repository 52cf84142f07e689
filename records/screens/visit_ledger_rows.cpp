#include "records/screens/visit_ledger_rows.h"

#include <iterator>
#include <vector>

#include "frame/core/routes.h"
#include "platform/screen/opens.h"
#include "platform/store/tables/claims.h"
#include "platform/store/tables/visits.h"
#include "records/screens/visit_ledger_screen.h"

namespace records {

using namespace screen;
using Ledger = VisitLedgerScreen;

namespace {

constexpr char16_t kFile[] = u"ファイル(&F)";
constexpr char16_t kView[] = u"表示(&V)";
constexpr char16_t kPrevious[] = u"前回同様(&Z)";
constexpr char16_t kReceipt[] = u"領収証印刷(&R)";
/// The separator between two spoken texts is U+00FE.
constexpr char16_t kListSay[] =
    u"治療の一覧表\u00FE右カーソルキーを押し、上カーソルキーで前回分を音声致します";
constexpr char16_t kMonthHelp[] =
    u"※１年分の場合は、この欄に「令和2年」とだけ入力すると、令和2年のみ表示されます。";
constexpr char16_t kDetailHelp[] =
    u"カルテ２詳細データで「前回同様」を使用する際には、「新規追加」を押す前に、前回を下の一覧で選択してから"
    u"「新規追加」→「登録」→「カルテ２詳細データ」のボタンを押し、カルテ２詳細データへ移行してください。";

consteval TextField field(int index, const char16_t* caption, store::Column column, int width = 12) {
  return TextField{
      .name = {u"txtFields", index}, .caption = caption, .bind = column, .limit = 50, .width = width};
}

constexpr GridColumn kColumns[] = {
    {visits::date, u"治療日"},      {visits::summary, u"治療概略"}, {visits::insurerPays, u"保険者負担金"},
    {visits::share, u"一部負担金"}, {visits::fee, u"治療金額"},     {visits::receiptDone, u"領収証チェック"},
    {visits::isNew, u"新患"},       {visits::name, u"氏名"},        {visits::birth, u"生年月日"},
};

constexpr Row kRows[] = {
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
    // Kept: the entry stores without the message; what came of it is said.
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
    Grid{.name = {u"DBGrid1"}, .caption = u"治療の一覧表", .columns = kColumns, .say = kListSay},
    EndGroup{},
};

}  // namespace

Rows visitRows() { return kRows; }

const ScreenRow& visitLedgerDeclaration() {
  static const std::vector<Row> rows = [] {
    std::vector<Row> all;
    for (const Rows part : {visitRows(), dayGridRows()}) all.insert(all.end(), part.begin(), part.end());
    return all;
  }();
  static const ScreenRow declaration{.name = u"治療台帳3",
                                     .caption = u"カルテ",
                                     .rows = rows,
                                     .sources = {visits::table, claim::secondHalf, claim::firstHalf},
                                     .functionKeys = true};
  return declaration;
}

}  // namespace records

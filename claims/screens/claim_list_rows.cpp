#include "claims/screens/claim_list_rows.h"

#include "claims/core/list_keys.h"
#include "claims/screens/claim_list_screen.h"

namespace claims {
namespace {

using namespace screen;

constexpr const char16_t* kMenu = u"メニュー(&M)";

constexpr GridColumn kColumns[] = {
    {u"申請年月", u"申請年月"},
    {u"氏名", u"氏名"},
    {u"施術内容", u"施術内容"},
    {u"保険の種類", u"保険の種類"},
    {u"請求区分", u"請求区分"},
    {u"合計", u"合計"},
    {u"一部負担金2", u"一部負担金"},
    {u"請求額", u"請求額"},
    {u"生年月日", u"生年月日"},
    {u"保険者番号", u"保険者番号"},
    {u"保険者名称", u"保険者名称"},
    {u"保険証番号1", u"保険証番号1"},
    {u"被保険者のフリガナ", u"被保険者のフリガナ"},
    {u"被保険者の氏名", u"被保険者の氏名"},
    {u"被保険者の生年月日", u"被保険者の生年月日"},
    {u"被保険者との続柄", u"続柄"},
    {u"療養を受ける者のフリガナ", u"療養を受ける者のフリガナ"},
    {u"療養を受ける者の氏名", u"療養を受ける者の氏名"},
    {u"療養を受ける者の生年月日", u"療養を受ける者の生年月日"},
    {u"事業所の名称", u"事業所の名称"},
    {u"事業所の所在地", u"事業所の所在地"},
    {u"初療年月日", u"初療年月日"},
    {u"同意医師住所", u"同意医師住所"},
    {u"同意医師氏名", u"同意医師氏名"},
    {u"同意の年月日", u"同意の年月日"},
    {u"申請月", u"申請月"},
    {u"要加療期間2", u"要加療期間2"},
    {u"請求回数", u"請求回数"},
    {u"ID", u"ID"},
};

constexpr Row kRows[] = {
    Grid{.name = u"DBGrid1", .caption = u"レセプトの一覧", .source = 1, .columns = kColumns,
         .onActivate = call<&ClaimListScreen::openClaim>},
    Bar{},
    TextField{.name = u"Text2", .caption = u"レコード:", .bind = Unbound{u"the row's place in the list"},
              .width = 12, .readOnly = true},
    EndBar{},
    Group{.name = u"Frame1", .caption = u"抽出", .columns = 2},
    Combo{.name = u"Combo1", .caption = u"抽出する項目:", .bind = Unbound{u"the column to search"},
          .items = kListKeys, .say = u"検索の文字選択と文字入力"},
    TextField{.name = u"Text1", .caption = u"抽出する文字:", .bind = Unbound{u"the text to search"},
              .onEnter = call<&ClaimListScreen::search>},
    EndGroup{},
    Bar{},
    Command{.name = u"Command1", .caption = u"レセプト項目の記入へ", .run = run<&ClaimListScreen::openClaim>,
            .menu = u"fm_1", .under = kMenu},
    Command{.name = u"Command7", .caption = u"抽出", .run = run<&ClaimListScreen::search>, .menu = u"fm_7",
            .under = kMenu},
    Command{.name = u"cmdRefresh", .caption = u"全患者表示及び再表示", .run = run<&ClaimListScreen::showAll>,
            .menu = u"fm_2", .under = kMenu, .tip = u"元の全ての患者表示に変わります。"},
    Command{.name = u"Command3", .caption = u"並び替え", .run = run<&ClaimListScreen::askSort>, .menu = u"fm_3",
            .under = kMenu},
    Command{.name = u"Command6", .caption = u"更新", .run = run<&ClaimListScreen::refresh>, .menu = u"fm_6",
            .under = kMenu},
    Command{.name = u"cmdDelete", .caption = u"削除", .run = run<&ClaimListScreen::removeClaim>, .menu = u"fm_8",
            .under = kMenu, .tip = u"表示の該当患者のデータをすべて削除します。"},
    Command{.name = u"cmdClose", .caption = u"閉じる", .run = run<&ClaimListScreen::finish>, .menu = u"fm_E",
            .under = kMenu},
    EndBar{},
    Bar{},
    Command{.name = u"Command4", .caption = u"月一括印刷", .run = run<&ClaimListScreen::printMonth>,
            .menu = u"fm_4", .under = kMenu},
    Command{.name = u"Command5", .caption = u"レセプト総括表印刷", .run = run<&ClaimListScreen::printSummary>,
            .menu = u"fm_5", .under = kMenu},
    Command{.name = u"Command8", .caption = u"国保・後期の集計表", .run = run<&ClaimListScreen::printCollective>,
            .menu = u"fm_9", .under = kMenu},
    Command{.name = u"Command9", .caption = u"療養費支給申請総括票Ⅰ・Ⅱ",
            .run = run<&ClaimListScreen::printSheets>, .menu = u"fm_10", .under = kMenu},
    EndBar{},
    Bar{},
    Command{.name = u"Command10", .caption = u"往療行程の印刷", .run = run<&ClaimListScreen::printRoutes>,
            .menu = u"fm_11", .under = kMenu},
    Command{.name = u"Command11", .caption = u"同意期限一ヶ月以内表示",
            .run = run<&ClaimListScreen::watchConsents>, .menu = u"fm_12", .under = kMenu},
    Command{.name = u"Command12", .caption = u"人体図の印刷", .run = run<&ClaimListScreen::printBodyCharts>,
            .menu = u"fm_13", .under = kMenu},
    EndBar{},
};

}  // namespace

constinit const ScreenRow kClaimListScreen{.name = u"レセプト一覧表",
                                           .caption = u"レセプトの一覧表",
                                           .rows = kRows,
                                           .sources = 1,
                                           .heading = u"レセプトの一覧表",
                                           .functionKeys = true};

}  // namespace claims

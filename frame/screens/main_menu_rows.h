#pragma once

#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "frame/screens/main_menu_screen.h"
#include "platform/screen/declare.h"
#include "platform/screen/opens.h"

namespace frame::menu {

using namespace screen;

inline constexpr char16_t kSelect[] = u"選択(&A)";
inline constexpr char16_t kHelp[] = u"ヘルプ(&H)";

inline constexpr Row kRows[] = {
    Note{.name = {u"Label1"}, .caption = u"Ver 9.22"},
    Note{.name = {u"Label2"}, .caption = u" このＰＣのWindowsは「令和」に対応しています。"},
    Note{.name = {u"Label3"}, .caption = u" このＰＣのWindowsは「令和」に対応していません。"},

    Group{.name = {u"FrameDaily"}, .caption = u"毎日の仕事", .columns = 3},
    Command{.name = {u"Command1"},
            .caption = u"電子カルテ",
            .run = opens<routes::PatientSearch>,
            .menu = u"sen_1",
            .under = kSelect},
    Command{.name = {u"Command5"},
            .caption = u"予約",
            .run = run<&MainMenuScreen::openBookings>,
            .menu = u"san_2",
            .under = kSelect},
    Command{.name = {u"Command2"},
            .caption = u"レセプトデータ",
            .run = run<&MainMenuScreen::openClaims>,
            .menu = u"sen_3",
            .under = kSelect},
    Command{.name = {u"Command3"},
            .caption = u"領収証",
            .run = run<&MainMenuScreen::openReceipts>,
            .menu = u"sen_4",
            .under = kSelect},
    Command{.name = {u"Command10"},
            .caption = u"集計",
            .run = run<&MainMenuScreen::openTakings>,
            .menu = u"sen_9",
            .under = kSelect},
    Command{.name = {u"Command6"},
            .caption = u"用紙印刷",
            .run = opens<routes::unbuilt::BlankForms>,
            .menu = u"sen_11",
            .under = kSelect},
    EndGroup{},

    Group{.name = {u"FrameSettings"}, .caption = u"設定と登録", .columns = 3},
    Command{.name = {u"Command7"},
            .caption = u"初期設定",
            .run = opens<routes::Profile>,
            .menu = u"sen_6",
            .under = kSelect},
    Command{.name = {u"Command8"},
            .caption = u"データ及びLANフォルダの指定",
            .run = opens<routes::Folders>,
            .menu = u"sen_7",
            .under = kSelect},
    Command{.name = {u"Command11"},
            .caption = u"同意医師の登録",
            .run = opens<routes::DoctorRegister>,
            .menu = u"sen_10",
            .under = kSelect},
    Command{.name = {u"Command16"},
            .caption = u"保険者登録",
            .run = opens<routes::InsurerRegister>,
            .menu = u"sen_16",
            .under = kSelect},
    Command{.name = {u"Command9"},
            .caption = u"料金確認",
            .run = opens<routes::Fees>,
            .menu = u"sen_12",
            .under = kSelect,
            .menuCaption = u"料金変更"},
    Command{.name = {u"Command13"},
            .caption = u"データバックアップ",
            .run = run<&MainMenuScreen::backUp>,
            .menu = u"sen_14",
            .under = kSelect},
    EndGroup{},

    Group{.name = {u"FrameEdition"}, .caption = u"都道府県と師会", .columns = 2},
    TextField{.name = {u"Text2"},
              .caption = u"都道府県番号:",
              .bind = Unbound{u"prefecture of the run"},
              .limit = 2,
              .width = 4},
    Command{.name = {u"Command20"}, .caption = u"県変更", .run = run<&MainMenuScreen::changePrefecture>},
    TextField{.name = {u"Text3"},
              .caption = u"愛知の提出先:",
              .bind = Unbound{u"association of the run"},
              .width = 28,
              .readOnly = true},
    Check{.name = {u"Check1"},
          .caption = u"師会変更",
          .bind = Unbound{u"association of the run"},
          .group = u"愛知",
          .onToggle = call<&MainMenuScreen::chooseAichi>},
    TextField{.name = {u"Text4"},
              .caption = u"東京の提出先:",
              .bind = Unbound{u"association of the run"},
              .width = 28,
              .readOnly = true},
    Check{.name = {u"Check2"},
          .caption = u"師会変更",
          .bind = Unbound{u"association of the run"},
          .group = u"東京",
          .onToggle = call<&MainMenuScreen::chooseTokyo>},
    EndGroup{},

    Bar{},
    Command{.name = {u"Command15"},
            .caption = u"マニュアル（説明書）",
            .run = run<&MainMenuScreen::openManual>,
            .menu = u"Men_KI",
            .under = kHelp},
    Command{.name = {u"Command4"},
            .caption = u"終了",
            .run = run<&MainMenuScreen::endProgram>,
            .menu = u"sen_E",
            .under = kSelect,
            .menuCaption = u"治療台帳の終了"},
    EndBar{},

    Entry{.name = {u"Men_HH"}, .under = kHelp, .caption = u"ヘルプ", .run = run<&MainMenuScreen::openManual>},
    Entry{.name = {u"Men_HTH"},
          .under = kHelp,
          .caption = u"テキストヘルプ",
          .run = run<&MainMenuScreen::openTextHelp>},
    Entry{.name = {u"Men_HTP"}, .under = kHelp, .caption = u"トピックスの表示", .run = opens<routes::Topics>},
    Entry{.name = {u"Men_HM"}, .under = kHelp, .caption = u"バージョン情報", .run = opens<routes::About>},
    Entry{.name = {u"Men_HHPN"},
          .under = kHelp,
          .caption = u"公益法人 RunaikのＨＰ",
          .run = run<&MainMenuScreen::openAssociationPage>},
    Entry{.name = {u"Men_HHPQVTOP"},
          .under = kHelp,
          .caption = u"ＱＶシステムのＨＰ",
          .run = run<&MainMenuScreen::openProductPage>},
    Entry{.name = {u"Men_HHPQVVUP"},
          .under = kHelp,
          .caption = u"ＱＶシステムのバージョンアップのＨＰ",
          .run = run<&MainMenuScreen::openUpdatePage>},
    Entry{.name = {u"Men_HHPQVE"},
          .under = kHelp,
          .caption = u"ＱＶシステムのエラー対処法のＨＰ",
          .run = run<&MainMenuScreen::openTroublePage>},
};

inline constexpr ScreenRow kDeclaration =
    declare({.name = routes::MainMenu::screen, .caption = u"選択", .rows = kRows});

inline constexpr ControlRef kVersion = ref(kRows, u"Label1");
inline constexpr ControlRef kEraSupported = ref(kRows, u"Label2");
inline constexpr ControlRef kEraUnsupported = ref(kRows, u"Label3");
inline constexpr ControlRef kPrefecture = ref(kRows, u"Text2");
inline constexpr ControlRef kAichiTick = ref(kRows, u"Check1");
inline constexpr ControlRef kAichiText = ref(kRows, u"Text3");
inline constexpr ControlRef kTokyoTick = ref(kRows, u"Check2");
inline constexpr ControlRef kTokyoText = ref(kRows, u"Text4");

}  // namespace frame::menu

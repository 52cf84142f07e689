#pragma once

#include "frame/core/routes.h"
#include "frame/screens/profile_screen.h"
#include "platform/screen/declare.h"
#include "platform/screen/opens.h"

namespace frame::profile_rows {

using namespace screen;

inline constexpr Unbound kSetting{u"a setting, not a column"};

inline constexpr const char16_t* kPayments[] = {u"振込", u"銀行送金", u"郵便局送金", u"当地払"};
inline constexpr const char16_t* kDeposits[] = {u"普通", u"当座", u"通知", u"別段"};
inline constexpr const char16_t* kInstitutions[] = {u"銀行", u"金庫", u"農協"};
inline constexpr const char16_t* kBranches[] = {u"本店", u"支店", u"出張所"};
inline constexpr const char16_t* kOffices[] = {u"施術所所在地", u"出張専門施術者住所地"};

// The stored values are those of the submissions: 3 and 4 in Aichi, 5 and 6 in Tokyo.
inline constexpr Choice kAichi[] = {
    {.name = {u"Option1"}, .caption = u"愛知県鍼灸師会に提出", .value = u"3"},
    {.name = {u"Option2"}, .caption = u"愛知県鍼灸マッサージ師会に提出", .value = u"4"},
};
inline constexpr Choice kTokyo[] = {
    {.name = {u"Option4"}, .caption = u"東京都鍼灸師会に提出", .value = u"5"},
    {.name = {u"Option3"}, .caption = u"東京都鍼灸師会　会員外", .value = u"6"},
};

inline constexpr Row kRows[] = {
    Note{.name = {u"Label1"},
         .caption = u"登録ありがとうございます。下記に正確に書き込んだ上、登録ボタンを押して下さい。",
         .spoken = true},
    Note{.name = {u"Label2"}, .caption = u"（注）※の項目は半角カナで入力して下さい。", .spoken = true},
    Note{.name = {u"Label34"}, .caption = u"都道府県版", .spoken = true},

    Page{u"施術者・施術所"},
    Group{.name = {u"FrameClinic"}, .caption = u"施術者と施術所", .columns = 2},
    TextField{.name = {u"Text1"}, .caption = u"施術者氏名:", .bind = kSetting},
    TextField{.name = {u"Text27"}, .caption = u"施術者氏名フリガナ:", .bind = kSetting},
    TextField{.name = {u"Text2"}, .caption = u"施術所の所在地:", .bind = kSetting},
    TextField{.name = {u"Text5"}, .caption = u"施術所の所在地カナ:", .bind = kSetting},
    TextField{.name = {u"Text3"}, .caption = u"施設名称:", .bind = kSetting},
    TextField{.name = {u"Text4"}, .caption = u"施術者郵便番号:", .bind = kSetting},
    TextField{.name = {u"Text30"}, .caption = u"施術所の電話番号:", .bind = kSetting},
    Note{.name = {u"Label30"}, .caption = u"（受領委任用）"},
    TextField{.name = {u"Text6"}, .caption = u"施術者登録番号:", .bind = kSetting},
    TextField{.name = {u"Text38"}, .caption = u"登録記号番号:", .bind = kSetting},
    TextField{.name = {u"Text37"}, .caption = u"メールアドレス:", .bind = kSetting},
    Combo{.name = {u"Combo1", 7},
          .caption = u"保健所登録区分:",
          .bind = kSetting,
          .items = kOffices,
          .editable = true},
    EndGroup{},
    Group{.name = {u"FrameKind"}, .caption = u"施術の種類", .columns = 2},
    Check{.name = {u"Check1", 0},
          .caption = u"鍼灸のみ",
          .bind = kSetting,
          .onToggle = call<&ProfileScreen::chooseKind>},
    Check{.name = {u"Check1", 1},
          .caption = u"あマ含む",
          .bind = kSetting,
          .onToggle = call<&ProfileScreen::chooseKind>},
    EndGroup{},

    Page{u"口座・会員番号"},
    Group{.name = {u"FrameAccount"}, .caption = u"振込先の口座", .columns = 2},
    Combo{.name = {u"Combo1", 4},
          .caption = u"支払機関区分:",
          .bind = kSetting,
          .items = kPayments,
          .editable = true},
    Combo{.name = {u"Combo1", 5},
          .caption = u"預金の種類:",
          .bind = kSetting,
          .items = kDeposits,
          .editable = true},
    TextField{.name = {u"Text8"}, .caption = u"金融機関名:", .bind = kSetting},
    Combo{.name = {u"Combo1", 0},
          .caption = u"金融機関の種類:",
          .bind = kSetting,
          .items = kInstitutions,
          .editable = true},
    TextField{.name = {u"Text9"}, .caption = u"本店支店名:", .bind = kSetting},
    Combo{.name = {u"Combo1", 1},
          .caption = u"本店支店の種類:",
          .bind = kSetting,
          .items = kBranches,
          .editable = true},
    TextField{.name = {u"Text10"}, .caption = u"郵便局名:", .bind = kSetting},
    TextField{.name = {u"Text33"}, .caption = u"金融機関コード:", .bind = kSetting},
    TextField{.name = {u"Text12"}, .caption = u"口座名義カタカナ:", .bind = kSetting},
    TextField{.name = {u"Text13"}, .caption = u"口座名義:", .bind = kSetting},
    TextField{.name = {u"Text14"}, .caption = u"口座番号:", .bind = kSetting},
    EndGroup{},
    Group{.name = {u"FrameNumbers"}, .caption = u"会員と登録の番号", .columns = 2},
    Note{.name = {u"Label35"}, .caption = u"※鍼用・マ用の会員番号がある場合は、"},
    Note{.name = {u"Label36"}, .caption = u"ここは空白にして下の機関番号に記入して下さい。"},
    TextField{.name = {u"Text11"}, .caption = u"会員の機関番号:", .bind = kSetting},
    TextField{.name = {u"Text34"}, .caption = u"会員の機関番号  鍼:", .bind = kSetting},
    TextField{.name = {u"Text35"}, .caption = u"会員の機関番号 あマ:", .bind = kSetting},
    TextField{.name = {u"Text25"}, .caption = u"所属師会名:", .bind = kSetting},
    TextField{.name = {u"Text26"}, .caption = u"所属師会の会長名:", .bind = kSetting},
    TextField{.name = {u"Text7"}, .caption = u"欄外番号:", .bind = kSetting},
    Note{.name = {u"Label37"}, .caption = u"※後期高齢の鍼用・マ用の番号が無い場合は、ここは空白して下さい。"},
    TextField{.name = {u"Text18"}, .caption = u"後期高齢者医療登録番号鍼:", .bind = kSetting},
    TextField{.name = {u"Text32"}, .caption = u"後期高齢者医療登録番号あ:", .bind = kSetting},
    EndGroup{},

    Page{u"代表者"},
    Group{.name = {u"FramePresident"}, .caption = u"代表者と代表者の口座", .columns = 2},
    TextField{.name = {u"Text15"}, .caption = u"代表者フリガナ:", .bind = kSetting},
    TextField{.name = {u"Text16"}, .caption = u"代表者氏名:", .bind = kSetting},
    TextField{.name = {u"Text17"}, .caption = u"代表者住所フリガナ:", .bind = kSetting},
    TextField{.name = {u"Text28"}, .caption = u"代表者住所:", .bind = kSetting},
    TextField{.name = {u"Text29"}, .caption = u"代表者郵便番号:", .bind = kSetting},
    TextField{.name = {u"Text31"}, .caption = u"代表者電話番号:", .bind = kSetting},
    Combo{.name = {u"Combo1", 6},
          .caption = u"代表者預金の種類:",
          .bind = kSetting,
          .items = kDeposits,
          .editable = true},
    TextField{.name = {u"Text19"}, .caption = u"代表者金融機関名:", .bind = kSetting},
    Combo{.name = {u"Combo1", 2},
          .caption = u"代表者金融機関の種類:",
          .bind = kSetting,
          .items = kInstitutions,
          .editable = true},
    TextField{.name = {u"Text20"}, .caption = u"代表者本店支店名:", .bind = kSetting},
    Combo{.name = {u"Combo1", 3},
          .caption = u"代表者本店支店の種類:",
          .bind = kSetting,
          .items = kBranches,
          .editable = true},
    TextField{.name = {u"Text21"}, .caption = u"代表者郵便局名:", .bind = kSetting},
    TextField{.name = {u"Text36"}, .caption = u"代表者金融機関コード:", .bind = kSetting},
    TextField{.name = {u"Text22"}, .caption = u"代表者口座名義カタカナ:", .bind = kSetting},
    TextField{.name = {u"Text23"}, .caption = u"代表者口座名義:", .bind = kSetting},
    TextField{.name = {u"Text24"}, .caption = u"代表者口座番号:", .bind = kSetting},
    EndGroup{},

    Page{u"印刷・提出"},
    Group{.name = {u"FramePrint"}, .caption = u"印刷", .columns = 1},
    Check{.name = {u"Check2"}, .caption = u"本人の続柄印刷: 印刷する", .bind = kSetting},
    Check{.name = {u"Check3"}, .caption = u"後期高齢被保険者氏名印刷: 印刷する", .bind = kSetting},
    Check{.name = {u"Check4"}, .caption = u"申請欄の氏名印刷: 印刷する", .bind = kSetting},
    EndGroup{},
    Options{.name = {u"Frame1"}, .caption = u"提出の選択", .bind = kSetting, .choices = kAichi},
    Options{.name = {u"Frame2"}, .caption = u"印刷用紙の選択", .bind = kSetting, .choices = kTokyo},
    EndPages{},

    Bar{},
    Command{.name = {u"Command1"}, .caption = u"登録", .run = run<&ProfileScreen::save>},
    Command{.name = {u"Command2"}, .caption = u"キャンセル", .run = run<&ProfileScreen::cancel>},
    Command{.name = {u"Command3"}, .caption = u"免許番号の登録", .run = opens<routes::Licences>},
    EndBar{},
};

inline constexpr ScreenRow kDeclaration =
    declare({.name = routes::Profile::screen, .caption = u"初期設定", .rows = kRows, .heading = u"初期設定"});

/// A control and the setting that it shows and stores.
struct Setting {
  ControlRef control;
  slot::Slot slot;
};
inline constexpr Setting kTexts[] = {
    {ref(kRows, u"Text1"), slot::kPractitioner},
    {ref(kRows, u"Text27"), slot::kPractitionerKana},
    {ref(kRows, u"Text2"), slot::kClinicAddress},
    {ref(kRows, u"Text5"), slot::kClinicAddressKana},
    {ref(kRows, u"Text3"), slot::kClinicName},
    {ref(kRows, u"Text4"), slot::kClinicZip},
    {ref(kRows, u"Text30"), slot::kClinicTelephone},
    {ref(kRows, u"Combo1", 4), slot::kPayment},
    {ref(kRows, u"Combo1", 5), slot::kDeposit},
    {ref(kRows, u"Text8"), slot::kBank},
    {ref(kRows, u"Combo1", 0), slot::kBankKind},
    {ref(kRows, u"Text9"), slot::kBranch},
    {ref(kRows, u"Combo1", 1), slot::kBranchKind},
    {ref(kRows, u"Text10"), slot::kPostOffice},
    {ref(kRows, u"Text33"), slot::kBankCode},
    {ref(kRows, u"Text11"), slot::kInstitution},
    {ref(kRows, u"Text34"), slot::kInstitutionHari},
    {ref(kRows, u"Text35"), slot::kInstitutionMassage},
    {ref(kRows, u"Text12"), slot::kAccountHolderKana},
    {ref(kRows, u"Text13"), slot::kAccountHolder},
    {ref(kRows, u"Text14"), slot::kAccount},
    {ref(kRows, u"Text15"), slot::kAgentKana},
    {ref(kRows, u"Text16"), slot::kAgent},
    {ref(kRows, u"Text17"), slot::kAgentAddressKana},
    {ref(kRows, u"Text28"), slot::kAgentAddress},
    {ref(kRows, u"Text29"), slot::kAgentZip},
    {ref(kRows, u"Text31"), slot::kAgentTelephone},
    {ref(kRows, u"Combo1", 6), slot::kAgentDeposit},
    {ref(kRows, u"Text19"), slot::kAgentBank},
    {ref(kRows, u"Combo1", 2), slot::kAgentBankKind},
    {ref(kRows, u"Text20"), slot::kAgentBranch},
    {ref(kRows, u"Combo1", 3), slot::kAgentBranchKind},
    {ref(kRows, u"Text21"), slot::kAgentPostOffice},
    {ref(kRows, u"Text36"), slot::kAgentBankCode},
    {ref(kRows, u"Text22"), slot::kAgentAccountHolderKana},
    {ref(kRows, u"Text23"), slot::kAgentAccountHolder},
    {ref(kRows, u"Text24"), slot::kAgentAccount},
    {ref(kRows, u"Text25"), slot::kAssociation},
    {ref(kRows, u"Text26"), slot::kPresident},
    {ref(kRows, u"Text6"), slot::kPractitionerNumber},
    {ref(kRows, u"Text7"), slot::kMarginNumber},
    {ref(kRows, u"Text18"), slot::kElderlyHari},
    {ref(kRows, u"Text32"), slot::kElderlyMassage},
    {ref(kRows, u"Combo1", 7), slot::kHealthOffice},
    {ref(kRows, u"Text37"), slot::kMail},
    {ref(kRows, u"Text38"), slot::kRegistration},
};
inline constexpr Setting kFlags[] = {
    {ref(kRows, u"Check2"), slot::kRelationPrinted},
    {ref(kRows, u"Check3"), slot::kElderlyNamePrinted},
    {ref(kRows, u"Check4"), slot::kPrintApplicantName},
};
inline constexpr ControlRef kAcupunctureOnly = ref(kRows, u"Check1", 0);
inline constexpr ControlRef kMassageToo = ref(kRows, u"Check1", 1);
inline constexpr ControlRef kEdition = ref(kRows, u"Label34");
inline constexpr ControlRef kAichiChoice = ref(kRows, u"Frame1");
inline constexpr ControlRef kTokyoChoice = ref(kRows, u"Frame2");

}  // namespace frame::profile_rows

#pragma once

#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "platform/screen/declare.h"
#include "platform/screen/opens.h"
#include "platform/store/tables/patients.h"
#include "records/screens/own_captions.h"
#include "records/screens/patient_screen.h"

// The rows of the patient screen, and its controls that the handlers use.

namespace records::patient_rows {

using namespace screen;

inline constexpr char16_t kFile[] = u"ファイル(&F)";
inline constexpr char16_t kMove[] = u"表示(&V)";
inline constexpr char16_t kSearch[] = u"検索(&S)";
inline constexpr char16_t kAppointment[] = u"予約(&Y)";
inline constexpr char16_t kReceipt[] = u"領収証(&R)";
inline constexpr char16_t kSpecial[] = u"特殊(&A)";
inline constexpr char16_t kSearchSay[] = u"検索の文字選択と文字入力";

consteval TextField field(int index, const char16_t* caption, store::Column column, int width = 20) {
  return TextField{.name = {u"txtFields", index}, .caption = caption, .bind = column, .width = width};
}

consteval TextField address(int index, const char16_t* caption, store::Column column) {
  TextField row = field(index, caption, column, 40);
  row.tip = u"全角20文字まで";
  return row;
}

consteval TextField memo(int index, const char16_t* caption, store::Column column) {
  TextField row = field(index, caption, column);
  row.lines = 2;
  return row;
}

inline constexpr const char16_t* kSexes[] = {u"男", u"女"};

// Identity, dates and the patient's own number come first: they are typed first and heard first.
inline constexpr Row kRows[] = {
    Entry{.name = {u"Men_FA"},
          .under = kFile,
          .caption = u"新規追加",
          .run = run<&PatientScreen::askNewPatient>},
    Bar{},
    Note{.name = {u"Label1"}, .caption = u"※の項目は必ず入力して下さい。", .spoken = true},
    Note{.name = {u"Label6"}, .caption = u"フリガナは半角カナで入力して下さい。", .spoken = true},
    Note{.name = {u"Label3"}, .caption = u"生年月日の記入例：2019/5/25（西暦）", .spoken = true},
    Note{.name = {u"Label2"}, .caption = u"住所は全角20文字まで", .spoken = true},
    EndBar{},

    Group{.name = {u"FramePatient"}, .caption = u"患者", .columns = 5},
    field(1, u"患者ID:", patients::patientNumber, 12),
    field(2, u"カルテ番号:", patients::chartNumber, 12),
    field(3, u"※フリガナ:", patients::kana),
    field(4, u"※氏名:", patients::name),
    field(5, u"※性別:", patients::sex, 4),
    Combo{.name = {u"Combo2"},
          .caption = u"性別の選択:",
          .bind = Unbound{u"writes its choice into the field of the sex"},
          .items = kSexes,
          .width = 4,
          .onEdit = call<&PatientScreen::chooseSex>},
    TextField{.name = {u"txtF6"},
              .caption = u"※生年月日:",
              .bind = patients::birth,
              .width = 16,
              .tip = u"生年月日の記入例：2019/5/25（西暦）",
              .onEnter = call<&PatientScreen::enterBirth>},
    field(7, u"年齢:", patients::age, 4),
    TextField{.name = {u"txtF24"}, .caption = u"初診日:", .bind = patients::firstVisit, .width = 16},
    field(23, u"日付1:", patients::date1, 16),
    field(16, u"職業:", patients::occupation),
    field(17, u"会社名:", patients::company),
    TextField{.name = {u"Text1"}, .caption = u"ID:", .bind = patients::id, .width = 8, .readOnly = true},
    TextField{.name = {u"Text2"},
              .caption = u"テキスト5:",
              .bind = patients::serial,
              .width = 14,
              .readOnly = true},
    EndGroup{},

    Group{.name = {u"FrameAddress"}, .caption = u"連絡先", .columns = 4},
    field(8, u"郵便番号:", patients::zip, 10),
    address(9, u"住所1:", patients::address[1]),
    address(10, u"住所2:", patients::address[2]),
    address(11, u"住所3:", patients::address[3]),
    field(12, u"電話1:", patients::telephone[1], 16),
    field(13, u"電話2:", patients::telephone[2], 16),
    field(14, u"携帯:", patients::mobile, 16),
    field(15, u"FAX:", patients::fax, 16),
    EndGroup{},

    Group{.name = {u"FrameKind"}, .caption = u"区分と紹介", .columns = 5},
    field(18, u"紹介してくれた人:", patients::referredBy),
    field(19, u"紹介した人:", patients::referred),
    field(20, u"キーワード1:", patients::keyword[1]),
    field(21, u"キーワード2:", patients::keyword[2]),
    field(22, u"区分:", patients::group),
    field(32, u"担当者:", patients::practitioner),
    field(33, u"割付:", patients::allotted),
    field(29, u"テキスト1:", patients::ownText[1]),
    field(30, u"テキスト2:", patients::ownText[2]),
    field(31, u"テキスト3:", patients::ownText[3]),
    EndGroup{},

    Group{.name = {u"FrameChart"}, .caption = u"既往症・症状・治療", .columns = 4},
    memo(25, u"既往症:", patients::history),
    memo(26, u"症状:", patients::symptoms),
    memo(27, u"治療:", patients::treatment),
    memo(28, u"メモ1:", patients::memo),
    EndGroup{},

    Group{.name = {u"FrameSearch"}, .caption = u"検索", .columns = 3},
    Combo{.name = {u"Combo1"},
          .caption = u"検索項目:",
          .bind = Unbound{u"chooses the column to search"},
          .say = kSearchSay},
    Combo{.name = {u"Combo3"},
          .caption = u"検索文字:",
          .bind = Unbound{u"the word to search"},
          .editable = true,
          .say = kSearchSay,
          .onEnter = call<&PatientScreen::search>},
    Command{.name = {u"Command1"},
            .caption = u"検索",
            .run = run<&PatientScreen::search>,
            .menu = u"Men_SS",
            .under = kSearch},
    EndGroup{},

    Bar{},
    Command{.name = {u"Command15"},
            .caption = u"先頭 (F1)",
            .run = run<&Screen::goFirst>,
            .menu = u"Men_VF1",
            .under = kMove,
            .menuCaption = u"先頭へ",
            .tip = u"先頭へ(F1)"},
    Command{.name = {u"Command16"},
            .caption = u"前へ (F2)",
            .run = run<&Screen::goPrevious>,
            .menu = u"Men_VF2",
            .under = kMove,
            .menuCaption = u"１つ前へ",
            .tip = u"前へ(F2)"},
    Command{.name = {u"Command17"},
            .caption = u"次へ (F3)",
            .run = run<&Screen::goNext>,
            .menu = u"Men_VF3",
            .under = kMove,
            .menuCaption = u"次へ",
            .tip = u"次へ(F3)"},
    Command{.name = {u"Command18"},
            .caption = u"最終 (F4)",
            .run = run<&Screen::goLast>,
            .menu = u"Men_VF4",
            .under = kMove,
            .menuCaption = u"最終へ",
            .tip = u"最終へ(F4)"},
    Note{.name = {u"Data1"}, .caption = u"ﾚｺｰﾄﾞ: "},
    Note{.name = {u"LabelCount"}, .caption = u"患者数:"},
    Note{.name = {u"Label14"}, .caption = u"0"},
    Command{.name = {u"cmdUpdate"},
            .caption = u"登録",
            .run = run<&PatientScreen::storeRow>,
            .menu = u"Men_FU",
            .under = kFile,
            .menuCaption = u"更新"},
    Command{.name = {u"cmdDelete"},
            .caption = u"削除",
            .run = run<&PatientScreen::removeRow>,
            .menu = u"Men_FD",
            .under = kFile,
            .menuCaption = u"表示患者の削除"},
    Command{.name = {u"Command8"},
            .caption = u"今日の日付",
            .run = run<&PatientScreen::fillFirstVisit>,
            .say = u"今日の日付のボタンです。エンターを押すと初療日に今日の日付を代入します｡"},
    Command{.name = {u"Command3"},
            .caption = u"西暦",
            .run = run<&PatientScreen::toSeireki>,
            .say = u"生年月日と初診日を西暦に変換します。年齢も再計算します。",
            .tip = u"生年月日と初診日を西暦に変換します。年齢も再計算します。"},
    Command{.name = {u"Command9"},
            .caption = u"和暦",
            .run = run<&PatientScreen::toWareki>,
            .say = u"生年月日と初診日を和暦に変換します。年齢も再計算します。",
            .tip = u"生年月日と初診日を和暦に変換します。年齢も再計算します。"},
    EndBar{},

    Bar{},
    Command{.name = {u"Command2"},
            .caption = u"カルテ1へ",
            .run = run<&PatientScreen::openChart1>,
            .menu = u"Men_FK1",
            .under = kFile,
            .menuCaption = u"表示の患者のカルテ１へ"},
    Command{.name = {u"Command4"},
            .caption = u"カルテ2へ",
            .run = run<&PatientScreen::openChart2>,
            .menu = u"Men_FK2",
            .under = kFile,
            .menuCaption = u"表示の患者のカルテ２へ"},
    Command{.name = {u"Command5"}, .caption = u"カルテ3へ", .run = run<&PatientScreen::openChart3>},
    Command{.name = {u"Command6"},
            .caption = u"表示の患者の新規レセプト作成",
            .run = run<&PatientScreen::openNewClaim>,
            .menu = u"Men_FNR",
            .under = kFile,
            .menuCaption = u"新規レセプト"},
    Command{.name = {u"Command7"},
            .caption = u"表示の患者のレセプト",
            .run = run<&PatientScreen::openClaims>,
            .menu = u"Men_FR",
            .under = kFile},
    Command{.name = {u"cmdAdd"},
            .caption = u"経穴辞典",
            .run = opens<routes::Acupoints>,
            .menu = u"Men_FJ3",
            .under = kFile},
    Command{.name = {u"cmdClose"},
            .caption = u"メインメニューへ",
            .run = run<&PatientScreen::leave>,
            .menu = u"Men_FEnd",
            .under = kFile,
            .menuCaption = u"閉じる"},
    EndBar{},

    Entry{.name = {u"Men_FJ1"}, .under = kFile, .caption = u"常用文字１", .run = opens<routes::Phrases>},
    Entry{.name = {u"Men_FJ2"}, .under = kFile, .caption = u"常用文字２", .run = opens<routes::PhrasePairs>},
    Entry{.name = {u"Men_FO"}, .under = kFile, .caption = u"一覧表と印刷", .run = opens<routes::PatientList>},
    Entry{.name = {u"Men_VF6"},
          .under = kMove,
          .caption = u"症状の項目へ",
          .run = run<&PatientScreen::focusSymptom>},
    Entry{.name = {u"Men_VF7"},
          .under = kMove,
          .caption = u"治療の項目へ",
          .run = run<&PatientScreen::focusTreatment>},
    // On purpose the entry only copies the date, while the button of the same caption fills the field too.
    Entry{.name = {u"Men_VF8"},
          .under = kMove,
          .caption = u"今日の日付",
          .run = run<&PatientScreen::copyToday>},
    Entry{.name = {u"Men_YD"},
          .under = kAppointment,
          .caption = u"表示患者の新規予約",
          .run = run<&PatientScreen::openPatientAppointment>},
    Entry{.name = {u"Men_YY"},
          .under = kAppointment,
          .caption = u"新規予約",
          .run = run<&PatientScreen::openAppointment>},
    Entry{.name = {u"Men_YK"},
          .under = kAppointment,
          .caption = u"今日の予約と一覧",
          .run = run<&PatientScreen::openToday>},
    Entry{.name = {u"Men_YI"},
          .under = kAppointment,
          .caption = u"予約週間表",
          .run = run<&PatientScreen::openWeek>},
    Entry{.name = {u"Men_RA"},
          .under = kReceipt,
          .caption = u"表示患者の領収証発行",
          .run = run<&PatientScreen::openReceipt>},
    Entry{.name = {u"Men_AT"}, .under = kSpecial, .caption = u"初期設定", .run = opens<routes::Profile>},
    Entry{.name = {u"Men_ALF"},
          .under = kSpecial,
          .caption = u"ＬＡＮおよびフォルダ指定",
          .run = opens<routes::Folders>},
    Entry{.name = {u"Men_ACHK"},
          .under = kSpecial,
          .caption = u"項目テキストの変更",
          .run = opens<routes::OwnCaptions>},
    Entry{.name = {u"Men_Am"},
          .under = kSpecial,
          .caption = u"メール用でメモへ",
          .run = opens<routes::unbuilt::MemoForMail>},
    Entry{.name = {u"Men_Amml"},
          .under = kSpecial,
          .caption = u"ＭＭＬ形式でメモへ",
          .run = opens<routes::unbuilt::MemoForMail2>},
};

inline constexpr ScreenRow kDeclaration = declare({.name = routes::PatientRegister::screen,
                                                   .caption = u"治療台帳",
                                                   .rows = kRows,
                                                   .sources = patients::table,
                                                   .functionKeys = true});

inline constexpr ControlRef kPatientNumber = ref(kRows, u"txtFields", 1);
inline constexpr ControlRef kName = ref(kRows, u"txtFields", 4);
inline constexpr ControlRef kSex = ref(kRows, u"txtFields", 5);
inline constexpr ControlRef kSexChoice = ref(kRows, u"Combo2");
inline constexpr ControlRef kBirth = ref(kRows, u"txtF6");
inline constexpr ControlRef kAge = ref(kRows, u"txtFields", 7);
inline constexpr ControlRef kFirstVisit = ref(kRows, u"txtF24");
inline constexpr ControlRef kSerial = ref(kRows, u"Text2");
inline constexpr ControlRef kSymptoms = ref(kRows, u"txtFields", 26);
inline constexpr ControlRef kTreatment = ref(kRows, u"txtFields", 27);
inline constexpr ControlRef kSearchColumn = ref(kRows, u"Combo1");
inline constexpr ControlRef kSearchWord = ref(kRows, u"Combo3");
inline constexpr ControlRef kPosition = ref(kRows, u"Data1");
inline constexpr ControlRef kCountLabel = ref(kRows, u"LabelCount");
inline constexpr ControlRef kCount = ref(kRows, u"Label14");

inline constexpr ControlRef kDates[] = {kBirth, kFirstVisit};
inline constexpr OwnCaption kOwnCaptions[] = {
    {frame::slot::kCaptionText1, ref(kRows, u"txtFields", 29)},
    {frame::slot::kCaptionText2, ref(kRows, u"txtFields", 30)},
    {frame::slot::kCaptionText3, ref(kRows, u"txtFields", 31)},
    {frame::slot::kCaptionSymptom, kSymptoms},
    {frame::slot::kCaptionTreatment, kTreatment},
};

}  // namespace records::patient_rows

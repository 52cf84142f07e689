#include "records/screens/patient_list_rows.h"

#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "platform/screen/opens.h"
#include "platform/store/tables/patients.h"
#include "records/core/list_columns.h"
#include "records/screens/patient_list_screen.h"

namespace records {

using namespace screen;

namespace {

// The name stands first: it is what each step down the list says.
constexpr GridColumn kColumns[] = {
    {patients::name, u"氏名"},
    {patients::kana, u"ふりがな"},
    {patients::patientNumber, u"患者ID"},
    {patients::chartNumber, u"カルテ番号"},
    {patients::sex, u"性別"},
    {patients::birth, u"生年月日"},
    {patients::age, u"年齢"},
    {patients::zip, u"郵便番号"},
    {patients::address[1], u"住所1"},
    {patients::address[2], u"住所2"},
    {patients::address[3], u"住所3"},
    {patients::telephone[1], u"電話1"},
    {patients::telephone[2], u"電話2"},
    {patients::mobile, u"携帯"},
    {patients::fax, u"FAX"},
    {patients::occupation, u"職業"},
    {patients::company, u"会社名"},
    {patients::firstVisit, u"初診日"},
    {patients::keyword[1], u"キーワード1"},
    {patients::keyword[2], u"キーワード2"},
    {patients::group, u"区分"},
    {patients::referredBy, u"紹介してくれた人"},
    {patients::referred, u"紹介した人"},
    {patients::practitioner, u"担当者"},
    {patients::allotted, u"割付"},
    {patients::history, u"既往症"},
    {patients::symptoms, u"症状"},
    {patients::date1, u"日付1"},
    {patients::ownText[1], u"テキスト1"},
    {patients::ownText[2], u"テキスト2"},
    {patients::ownText[3], u"テキスト3"},
    {patients::id, u"ID"},
};

constexpr Row kRows[] = {
    Grid{.name = u"DBGrid1",
         .caption = u"患者の一覧",
         .columns = kColumns,
         .onActivate = call<&PatientListScreen::handOver>},
    Bar{},
    TextField{
        .name = u"Text1", .caption = u"テキスト5:", .bind = patients::serial, .width = 14, .readOnly = true},
    TextField{.name = u"Text2",
              .caption = u"表示の患者数:",
              .bind = Unbound{u"rows on view"},
              .width = 8,
              .readOnly = true},
    TextField{.name = u"Text3",
              .caption = u"現在の行:",
              .bind = Unbound{u"the row's place in the list"},
              .width = 12,
              .readOnly = true},
    EndBar{},
    Bar{},
    Command{.name = u"Command2", .caption = u"全般抽出", .run = opens<routes::SearchPatientList>},
    Command{.name = u"Command3", .caption = u"特定抽出", .run = opens<routes::ExtractPatients>},
    Command{.name = u"Command7", .caption = u"並び替え", .run = opens<routes::SortPatients>},
    Command{
        .name = u"cmdRefresh", .caption = u"全患者表示及び再表示", .run = run<&PatientListScreen::showAll>},
    EndBar{},
    Bar{},
    Command{
        .name = u"Command5", .caption = u"ＥＸＣＥＬへ変換", .run = opens<routes::unbuilt::ExportPatients>},
    Command{
        .name = u"Command4", .caption = u"表示患者のタック印刷", .run = run<&PatientListScreen::printLabels>},
    Command{.name = u"Command8", .caption = u"患者名簿へ", .run = run<&PatientListScreen::handOver>},
    Command{.name = u"Command1", .caption = u"一覧表と印刷の終了", .run = run<&PatientListScreen::finish>},
    EndBar{},
};

constexpr auto kDialogColumns = choicesOf(kListColumns);

constexpr ExtractRow kExtractions[] = {{.name = u"抽出2",
                                        .caption = u"抽出",
                                        .list = u"一覧表",
                                        .columns = kDialogColumns,
                                        .wordCaption = u"抽出する文字を書き込んで下さい",
                                        .go = u"検索及び抽出"}};

constexpr SortRow kSorts[] = {{.name = u"ソート1", .list = u"一覧表", .columns = kDialogColumns}};

}  // namespace

constinit const ScreenRow kPatientListDeclaration{.name = u"一覧表",
                                                  .caption = u"一覧表と印刷",
                                                  .rows = kRows,
                                                  .sources = patients::table,
                                                  .functionKeys = true};

std::span<const ExtractRow> patientListExtractions() { return kExtractions; }
std::span<const SortRow> patientListSorts() { return kSorts; }

}  // namespace records

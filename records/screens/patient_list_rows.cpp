#include "records/screens/patient_list_rows.h"

#include "platform/screen/opens.h"
#include "records/core/list_columns.h"
#include "records/screens/patient_list_screen.h"

namespace records {

using namespace screen;

namespace {

// The name stands first: it is what each step down the list says.
constexpr GridColumn kColumns[] = {
    {u"氏名", u"氏名"},
    {u"ふりがな", u"ふりがな"},
    {u"患者ID", u"患者ID"},
    {u"カルテ番号", u"カルテ番号"},
    {u"性別", u"性別"},
    {u"生年月日", u"生年月日"},
    {u"年齢", u"年齢"},
    {u"郵便番号", u"郵便番号"},
    {u"住所1", u"住所1"},
    {u"住所2", u"住所2"},
    {u"住所3", u"住所3"},
    {u"電話1", u"電話1"},
    {u"電話2", u"電話2"},
    {u"携帯", u"携帯"},
    {u"FAX", u"FAX"},
    {u"職業", u"職業"},
    {u"会社名", u"会社名"},
    {u"初診日", u"初診日"},
    {u"キーワード1", u"キーワード1"},
    {u"キーワード2", u"キーワード2"},
    {u"区分", u"区分"},
    {u"紹介してくれた人", u"紹介してくれた人"},
    {u"紹介した人", u"紹介した人"},
    {u"担当者", u"担当者"},
    {u"割付", u"割付"},
    {u"既往症", u"既往症"},
    {u"症状", u"症状"},
    {u"日付1", u"日付1"},
    {u"テキスト1", u"テキスト1"},
    {u"テキスト2", u"テキスト2"},
    {u"テキスト3", u"テキスト3"},
    {u"ID", u"ID"},
};

constexpr Row kRows[] = {
    Grid{.name = u"DBGrid1",
         .caption = u"患者の一覧",
         .source = 1,
         .columns = kColumns,
         .onActivate = call<&PatientListScreen::handOver>},
    Bar{},
    TextField{.name = u"Text1",
              .caption = u"テキスト5:",
              .bind = Column{u"テキスト5"},
              .width = 14,
              .readOnly = true},
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
    Command{.name = u"Command2", .caption = u"全般抽出", .run = opens<u"抽出2">},
    Command{.name = u"Command3", .caption = u"特定抽出", .run = opens<u"抽出3">},
    Command{.name = u"Command7", .caption = u"並び替え", .run = opens<u"ソート1">},
    Command{
        .name = u"cmdRefresh", .caption = u"全患者表示及び再表示", .run = run<&PatientListScreen::showAll>},
    EndBar{},
    Bar{},
    Command{.name = u"Command5", .caption = u"ＥＸＣＥＬへ変換", .run = opens<u"CSVEXCEL">},
    Command{
        .name = u"Command4", .caption = u"表示患者のタック印刷", .run = run<&PatientListScreen::printLabels>},
    Command{.name = u"Command8", .caption = u"患者名簿へ", .run = run<&PatientListScreen::handOver>},
    Command{.name = u"Command1", .caption = u"一覧表と印刷の終了", .run = run<&PatientListScreen::finish>},
    EndBar{},
};

constexpr auto kDialogColumns = ownNames(kListColumns);

constexpr ExtractRow kExtractions[] = {{.name = u"抽出2",
                                        .caption = u"抽出",
                                        .list = u"一覧表",
                                        .columns = kDialogColumns,
                                        .wordCaption = u"抽出する文字を書き込んで下さい",
                                        .go = u"検索及び抽出"}};

constexpr SortRow kSorts[] = {{.name = u"ソート1", .list = u"一覧表", .columns = kDialogColumns}};

}  // namespace

constinit const ScreenRow kPatientListDeclaration{
    .name = u"一覧表", .caption = u"一覧表と印刷", .rows = kRows, .sources = 1, .functionKeys = true};

std::span<const ExtractRow> patientListExtractions() { return kExtractions; }
std::span<const SortRow> patientListSorts() { return kSorts; }

}  // namespace records

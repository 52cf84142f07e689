#include "frame/screens/folders_screen.h"

#include "frame/core/routes.h"
#include "platform/shell/desktop.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Unbound kPath{u"a path of the settings"};

/// The entry of DataFolders behind each field, in the order of the screen.
constexpr int kEntries[] = {folder::kPatients, folder::kAppointments, folder::kClaims1, folder::kAcupoints,
                            folder::kPhrases1, folder::kPhrases2,     folder::kVisits,  folder::kDoctors,
                            folder::kInsurers, folder::kFees,         folder::kClaims2, folder::kPictures};

constexpr Row kRows[] = {
    Note{.name = {u"Label1"}, .caption = u"各データのある場所を変更できます。", .spoken = true},
    Group{.name = {u"Frame1"}, .caption = u"データファイルの指定", .columns = 2},
    TextField{.name = {u"Text1", 0},
              .caption = u"臨床QV2000N.mdb ファイルの場所を指定",
              .bind = kPath,
              .width = 64},
    Command{.name = {u"Command3", 0}, .caption = u"参照 臨床QV2000N.mdb", .run = run<&FoldersScreen::browse>},
    TextField{
        .name = {u"Text1", 1}, .caption = u"予約2000.mdb ファイルの場所を指定", .bind = kPath, .width = 64},
    Command{.name = {u"Command3", 1}, .caption = u"参照 予約2000.mdb", .run = run<&FoldersScreen::browse>},
    TextField{.name = {u"Text1", 2},
              .caption = u"保険申請2000_1.mdb ファイルの場所を指定",
              .bind = kPath,
              .width = 64},
    Command{
        .name = {u"Command3", 2}, .caption = u"参照 保険申請2000_1.mdb", .run = run<&FoldersScreen::browse>},
    TextField{.name = {u"Text1", 3},
              .caption = u"Keiraku2000.mdb ファイルの場所を指定",
              .bind = kPath,
              .width = 64},
    Command{.name = {u"Command3", 3}, .caption = u"参照 Keiraku2000.mdb", .run = run<&FoldersScreen::browse>},
    TextField{
        .name = {u"Text1", 4}, .caption = u"CLmoji2000.mdb ファイルの場所を指定", .bind = kPath, .width = 64},
    Command{.name = {u"Command3", 4}, .caption = u"参照 CLmoji2000.mdb", .run = run<&FoldersScreen::browse>},
    TextField{.name = {u"Text1", 5},
              .caption = u"CL2moji2000.mdb ファイルの場所を指定",
              .bind = kPath,
              .width = 64},
    Command{.name = {u"Command3", 5}, .caption = u"参照 CL2moji2000.mdb", .run = run<&FoldersScreen::browse>},
    TextField{.name = {u"Text1", 6},
              .caption = u"カルテ2データ2000.mdb ファイルの場所を指定",
              .bind = kPath,
              .width = 64},
    Command{.name = {u"Command3", 6},
            .caption = u"参照 カルテ2データ2000.mdb",
            .run = run<&FoldersScreen::browse>},
    TextField{.name = {u"Text1", 7},
              .caption = u"同意医師2000.mdb ファイルの場所を指定",
              .bind = kPath,
              .width = 64},
    Command{
        .name = {u"Command3", 7}, .caption = u"参照 同意医師2000.mdb", .run = run<&FoldersScreen::browse>},
    TextField{
        .name = {u"Text1", 8}, .caption = u"保険者2000.mdb ファイルの場所を指定", .bind = kPath, .width = 64},
    Command{.name = {u"Command3", 8}, .caption = u"参照 保険者2000.mdb", .run = run<&FoldersScreen::browse>},
    TextField{.name = {u"Text1", 9},
              .caption = u"料金設定2000.mdb ファイルの場所を指定",
              .bind = kPath,
              .width = 64},
    Command{
        .name = {u"Command3", 9}, .caption = u"参照 料金設定2000.mdb", .run = run<&FoldersScreen::browse>},
    TextField{.name = {u"Text1", 10},
              .caption = u"保険申請2000_2.mdb ファイルの場所を指定",
              .bind = kPath,
              .width = 64},
    Command{
        .name = {u"Command3", 10}, .caption = u"参照 保険申請2000_2.mdb", .run = run<&FoldersScreen::browse>},
    TextField{.name = {u"Text1", 11}, .caption = u"人体図のフォルダの場所を指定", .bind = kPath, .width = 64},
    Command{
        .name = {u"Command3", 11}, .caption = u"参照 人体図のフォルダ", .run = run<&FoldersScreen::browse>},
    EndGroup{},
    Bar{},
    Command{.name = {u"Command1"}, .caption = u"変更", .run = run<&FoldersScreen::change>},
    Command{.name = {u"Command2"}, .caption = u"キャンセル", .run = run<&FoldersScreen::cancel>},
    EndBar{},
};

constexpr ScreenRow kDeclaration{
    .name = u"LANフォルダ指定", .caption = u"ＬＡＮおよびデータのフォルダ指定", .rows = kRows};

QString field(int index) { return u"Text1(%1)"_s.arg(index); }

}  // namespace

FoldersScreen::FoldersScreen(Services& services, RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

void FoldersScreen::onLoad() {
  for (int i = 0; i < static_cast<int>(std::size(kEntries)); ++i)
    setText(field(i), m_run.folders[static_cast<size_t>(kEntries[i])]);
}

void FoldersScreen::browse(int index) {
  const bool isFolder = kEntries[index] == folder::kPictures;
  const QString chosen = isFolder ? services().desktop->pickFolder(u"フォルダの選択"_s, text(field(index)))
                                  : services().desktop->pickFile(u"Data(*.mdb)|*.mdb"_s, text(field(index)));
  if (!chosen.isEmpty()) setText(field(index), chosen);
  focusOn(field(index));
}

void FoldersScreen::change() {
  DataFolders typed = m_run.folders;
  for (int i = 0; i < static_cast<int>(std::size(kEntries)); ++i) {
    const QString path = text(field(i));
    if (path.isEmpty()) {
      messages().tell(u"フォルダの指定が空白です。変更出来ません。キャンセルを押せば変更せずに閉じます。"_s);
      return;
    }
    typed[static_cast<size_t>(kEntries[i])] = path;
  }
  m_run.pendingFolders = typed;
  navigator().show(routes::AskFolders{});
  navigator().unload(routes::Folders::screen);
}

void FoldersScreen::cancel() { navigator().unload(routes::Folders::screen); }

}  // namespace frame

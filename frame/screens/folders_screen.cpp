#include "frame/screens/folders_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/shell/desktop.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Unbound kPath{u"a path of the settings"};

/// The entry of DataFolders that each field shows, in the order of the screen.
constexpr int kEntries[] = {folder::kPatients, folder::kAppointments, folder::kClaims1, folder::kAcupoints,
                            folder::kPhrases1, folder::kPhrases2,     folder::kVisits,  folder::kDoctors,
                            folder::kInsurers, folder::kFees,         folder::kClaims2, folder::kPictures};

consteval TextField pathField(int index, const char16_t* caption) {
  return TextField{.name = {u"Text1", index}, .caption = caption, .bind = kPath, .width = 64};
}
consteval Command browseButton(int index, const char16_t* caption) {
  return Command{.name = {u"Command3", index}, .caption = caption, .run = run<&FoldersScreen::browse>};
}

constexpr Row kRows[] = {
    Note{.name = {u"Label1"}, .caption = u"各データのある場所を変更できます。", .spoken = true},
    Group{.name = {u"Frame1"}, .caption = u"データファイルの指定", .columns = 2},
    pathField(0, u"臨床QV2000N.mdb ファイルの場所を指定"),
    browseButton(0, u"参照 臨床QV2000N.mdb"),
    pathField(1, u"予約2000.mdb ファイルの場所を指定"),
    browseButton(1, u"参照 予約2000.mdb"),
    pathField(2, u"保険申請2000_1.mdb ファイルの場所を指定"),
    browseButton(2, u"参照 保険申請2000_1.mdb"),
    pathField(3, u"Keiraku2000.mdb ファイルの場所を指定"),
    browseButton(3, u"参照 Keiraku2000.mdb"),
    pathField(4, u"CLmoji2000.mdb ファイルの場所を指定"),
    browseButton(4, u"参照 CLmoji2000.mdb"),
    pathField(5, u"CL2moji2000.mdb ファイルの場所を指定"),
    browseButton(5, u"参照 CL2moji2000.mdb"),
    pathField(6, u"カルテ2データ2000.mdb ファイルの場所を指定"),
    browseButton(6, u"参照 カルテ2データ2000.mdb"),
    pathField(7, u"同意医師2000.mdb ファイルの場所を指定"),
    browseButton(7, u"参照 同意医師2000.mdb"),
    pathField(8, u"保険者2000.mdb ファイルの場所を指定"),
    browseButton(8, u"参照 保険者2000.mdb"),
    pathField(9, u"料金設定2000.mdb ファイルの場所を指定"),
    browseButton(9, u"参照 料金設定2000.mdb"),
    pathField(10, u"保険申請2000_2.mdb ファイルの場所を指定"),
    browseButton(10, u"参照 保険申請2000_2.mdb"),
    pathField(11, u"人体図のフォルダの場所を指定"),
    browseButton(11, u"参照 人体図のフォルダ"),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command1"}, .caption = u"変更", .run = run<&FoldersScreen::change>},
    Command{.name = {u"Command2"}, .caption = u"キャンセル", .run = run<&FoldersScreen::cancel>},
    EndBar{},
};

constexpr ScreenRow kDeclaration =
    declare({.name = routes::Folders::screen, .caption = u"ＬＡＮおよびデータのフォルダ指定", .rows = kRows});

constexpr FamilyRef kFields = family(kRows, u"Text1");

}  // namespace

FoldersScreen::FoldersScreen(Services& services, RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

void FoldersScreen::onLoad() {
  for (int i = 0; i < static_cast<int>(std::size(kEntries)); ++i)
    setText(kFields[i], m_run.folders[static_cast<size_t>(kEntries[i])]);
}

void FoldersScreen::browse(int index) {
  const bool isFolder = kEntries[index] == folder::kPictures;
  const QString chosen = isFolder
                             ? services().desktop->pickFolder(u"フォルダの選択"_s, text(kFields[index]))
                             : services().desktop->pickFile(u"Data(*.mdb)|*.mdb"_s, text(kFields[index]));
  if (!chosen.isEmpty()) setText(kFields[index], chosen);
  focusOn(kFields[index]);
}

void FoldersScreen::change() {
  DataFolders typed = m_run.folders;
  for (int i = 0; i < static_cast<int>(std::size(kEntries)); ++i) {
    const QString path = text(kFields[i]);
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

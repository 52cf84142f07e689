#include "sample_screen.h"

#include <gtest/gtest.h>

#include "platform/store/bulk.h"
#include "platform/store/database.h"
#include "platform/store/tables/patients.h"

namespace screen::testing {
namespace {

constexpr const char16_t* kKinds[] = {u"氏名", u"住所1", u"電話1"};
constexpr Choice kChoices[] = {{{u"Option1", 0}, u"男性", u"1"}, {{u"Option1", 1}, u"女性", u"2"}};
constexpr const char16_t* kDueColumns[] = {u"氏名", u"期限"};
constexpr GridColumn kColumns[] = {{patients::name, u"氏名"}, {patients::address[1], u"住所"}};

constexpr Row kRows[] = {
    Note{.name = {u"Label1"}, .caption = u"※は必ず入力してください", .spoken = true},
    Note{.name = {u"Label2"}, .caption = u"見本"},
    Bar{},
    Command{.name = {u"cmdUpdate"},
            .caption = u"登録(&S)",
            .run = run<&SampleScreen::storeRow>,
            .menu = u"Men_FU",
            .under = u"ファイル(&F)",
            .tip = u"患者を登録します"},
    Command{.name = {u"cmdClose"},
            .caption = u"閉じる",
            .run = run<&SampleScreen::closeIt>,
            .menu = u"Men_FC",
            .under = u"ファイル(&F)",
            .menuCaption = u"終わる",
            .key = u"Ctrl+W",
            .say = u"画面を閉じます"},
    EndBar{},
    Entry{.name = {u"Men_X"}, .under = u"特殊", .caption = u"メモへ", .run = run<&SampleScreen::storeRow>},
    Page{u"基本"},
    TextField{.name = {u"txtFields", 4},
              .caption = u"※氏名:",
              .bind = patients::name,
              .limit = 4,
              .tip = u"姓と名",
              .onEnter = call<&SampleScreen::entered>,
              .onLeave = call<&SampleScreen::left>,
              .onEdit = call<&SampleScreen::edited>},
    TextField{.name = {u"txtFields", 5}, .caption = u"住所:", .bind = patients::address[1]},
    Group{.name = {u"Frame2"}, .caption = u"勤務先"},
    TextField{.name = {u"txtFields", 6}, .caption = u"住所:", .bind = patients::address[2]},
    EndGroup{},
    Combo{.name = {u"Combo1"},
          .caption = u"項目:",
          .bind = patients::keyword[1],
          .items = kKinds,
          .onEdit = call<&SampleScreen::picked>},
    Combo{.name = {u"Combo2"},
          .caption = u"区分:",
          .bind = patients::group,
          .editable = true,
          .limit = 255,
          .say = u"検索の文字選択と文字入力",
          .onEnter = call<&SampleScreen::entered>},
    Check{.name = {u"Check1"},
          .caption = u"印刷する",
          .bind = patients::spareMark[1],
          .marksDirty = true,
          .onToggle = call<&SampleScreen::toggled>},
    Check{.name = {u"Check2"},
          .caption = u"要",
          .bind = patients::spareText[1],
          .on = u"有",
          .off = u"無",
          .group = u"往療"},
    Options{.name = {u"Frame1"},
            .caption = u"性別:",
            .bind = patients::sex,
            .choices = kChoices,
            .marksDirty = true,
            .onChoose = call<&SampleScreen::chose>},
    Page{u"治療"},
    TextRun{.name = {u"txtDay", 60},
            .count = 3,
            .caption = u"%1日 治療内容:",
            .bind = patients::table.series(u"t1", 1, 3),
            .onEdit = call<&SampleScreen::edited>},
    TextField{
        .name = {u"txtMemo"}, .caption = u"メモ:", .bind = patients::spareMemo[1], .limit = 1000, .lines = 3},
    Grid{.name = {u"DBGrid1"},
         .caption = u"患者の一覧",
         .columns = kColumns,
         .onActivate = call<&SampleScreen::activated>,
         .onMove = call<&SampleScreen::rowMoved>},
    Table{.name = {u"Table1"},
          .caption = u"期限の一覧",
          .columns = kDueColumns,
          .onActivate = call<&SampleScreen::activated>,
          .onMove = call<&SampleScreen::rowMoved>},
};

constexpr ScreenRow kSample{.name = u"見本1",
                            .caption = u"見本の画面",
                            .rows = kRows,
                            .sources = patients::table,
                            .heading = u"見本の画面です",
                            .functionKeys = true};

}  // namespace

SampleScreen::SampleScreen(Services& services) : Screen(kSample, services) {}

void SampleScreen::left(int index) {
  note(QStringLiteral("leave %1").arg(index));
  if (!refuseToLeave) return;
  messages().tell(QStringLiteral("氏名を直して下さい。"));
  keepFocus();
}

Harness::Harness() {
  navigator.setServices(services);
  messages.answerFromQueue();
}

QString Harness::patientsFile(const QStringList& names) {
  const QString path = folder.filePath(QStringLiteral("臨床QV2000N.mdb"));
  EXPECT_TRUE(store::createFresh(path, QStringLiteral("臨床QV2000N.mdb")));
  const bool added =
      store::addRows(path, QStringLiteral("臨床QV"), static_cast<int>(names.size()), [&](int number) {
        return QHash<QString, store::Value>{{QStringLiteral("氏名"), names.value(number)}};
      }).ok();
  EXPECT_TRUE(added);
  return path;
}

}  // namespace screen::testing

#pragma once

#include "frame/core/routes.h"
#include "platform/screen/declare.h"
#include "platform/screen/opens.h"
#include "platform/store/tables/patients.h"
#include "records/screens/chart1_screen.h"
#include "records/screens/own_captions.h"

// The rows of 治療台帳2, and its controls that the handlers use.

namespace records::chart1_rows {

using namespace screen;

inline constexpr char16_t kFile[] = u"ファイル(&F)";
inline constexpr char16_t kDictionaries[] = u"辞典(&J)";
inline constexpr char16_t kWindowsSay[] = u"常用文字１、常用文字２、経穴辞典の窓を閉じます";

consteval TextField field(int index, const char16_t* caption, store::Column column, int width = 20) {
  return TextField{.name = {u"txtFields", index}, .caption = caption, .bind = column, .width = width};
}

consteval TextField memo(int index, const char16_t* caption, store::Column column) {
  TextField row = field(index, caption, column, 100);
  row.lines = 6;
  return row;
}

inline constexpr Row kRows[] = {
    Group{.name = {u"FramePatient"}, .caption = u"患者", .columns = 3},
    field(32, u"担当者:", patients::practitioner),
    field(4, u"氏名:", patients::name),
    field(5, u"性別:", patients::sex, 4),
    TextField{.name = {u"txtF6"}, .caption = u"生年月日:", .bind = patients::birth, .width = 16},
    field(7, u"年齢:", patients::age, 4),
    TextField{.name = {u"txtF24"}, .caption = u"初診日:", .bind = patients::firstVisit, .width = 16},
    EndGroup{},
    Group{.name = {u"FrameChart"}, .caption = u"既往症・症状・治療", .columns = 1},
    memo(25, u"既往症:", patients::history),
    memo(26, u"症状:", patients::symptoms),
    memo(27, u"治療:", patients::treatment),
    EndGroup{},
    Bar{},
    Command{.name = {u"cmdUpdate"}, .caption = u"更新", .run = run<&Chart1Screen::update>},
    Command{.name = {u"Command3"},
            .caption = u"西暦",
            .run = run<&Chart1Screen::toSeireki>,
            .say = u"生年月日と初診日を西暦に変換します。"},
    Command{.name = {u"Command9"},
            .caption = u"和暦",
            .run = run<&Chart1Screen::toWareki>,
            .say = u"生年月日と初診日を和暦に変換します。"},
    Command{.name = {u"Command8"}, .caption = u"今日の日付", .run = run<&Chart1Screen::copyNow>},
    Command{.name = {u"Command2"},
            .caption = u"CB",
            .run = run<&Chart1Screen::closeDictionaries>,
            .say = kWindowsSay,
            .tip = kWindowsSay},
    Command{.name = {u"cmdClose"},
            .caption = u"閉じる",
            .run = run<&Chart1Screen::finish>,
            .menu = u"Men_FE",
            .under = kFile},
    EndBar{},
    // On purpose the entry asks twice, while the button of the same caption asks once.
    Entry{.name = {u"Men_FU"},
          .under = kFile,
          .caption = u"更新",
          .run = run<&Chart1Screen::updateAfterWarning>},
    Entry{.name = {u"Men_FJ1"},
          .under = kDictionaries,
          .caption = u"常用文字１",
          .run = opens<routes::Phrases>},
    Entry{.name = {u"Men_FJ2"},
          .under = kDictionaries,
          .caption = u"常用文字２",
          .run = opens<routes::PhrasePairs>},
    Entry{.name = {u"Men_FJ3"},
          .under = kDictionaries,
          .caption = u"経穴辞典",
          .run = opens<routes::Acupoints>},
};

inline constexpr ScreenRow kDeclaration = declare({.name = routes::PatientTexts::screen,
                                                   .caption = u"カルテ１",
                                                   .rows = kRows,
                                                   .sources = patients::table,
                                                   .functionKeys = true});

inline constexpr ControlRef kName = ref(kRows, u"txtFields", 4);
inline constexpr ControlRef kDates[] = {ref(kRows, u"txtF6"), ref(kRows, u"txtF24")};
inline constexpr OwnCaption kOwnCaptions[] = {
    {frame::slot::kCaptionSymptom, ref(kRows, u"txtFields", 26)},
    {frame::slot::kCaptionTreatment, ref(kRows, u"txtFields", 27)},
};

}  // namespace records::chart1_rows

#pragma once

#include <array>

#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "platform/screen/declare.h"
#include "platform/screen/opens.h"
#include "platform/store/tables/patients.h"
#include "records/screens/patient_list_screen.h"

// The rows of 一覧表, and its controls that the handlers use.

namespace records::patient_list_rows {

using namespace screen;

/// Columns of a grid that are titled by their own names.
template <std::size_t N>
consteval auto titled(const std::array<store::Column, N>& columns) {
  return [&columns]<std::size_t... At>(std::index_sequence<At...>) {
    return std::array<GridColumn, N>{GridColumn{columns[At], columns[At].name()}...};
  }
  (std::make_index_sequence<N>());
}

// The name comes first: it is what each step down the list says.
inline constexpr auto kListed = titled(
    std::array{patients::name,         patients::kana,       patients::patientNumber, patients::chartNumber,
               patients::sex,          patients::birth,      patients::age,           patients::zip,
               patients::address[1],   patients::address[2], patients::address[3],    patients::telephone[1],
               patients::telephone[2], patients::mobile,     patients::fax,           patients::occupation,
               patients::company,      patients::firstVisit, patients::keyword[1],    patients::keyword[2],
               patients::group,        patients::referredBy, patients::referred,      patients::practitioner,
               patients::allotted,     patients::history,    patients::symptoms,      patients::date1,
               patients::ownText[1],   patients::ownText[2], patients::ownText[3],    patients::id});

inline constexpr Row kRows[] = {
    Grid{.name = u"DBGrid1",
         .caption = u"患者の一覧",
         .columns = kListed,
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

inline constexpr ScreenRow kDeclaration = declare({.name = routes::PatientList::screen,
                                                   .caption = u"一覧表と印刷",
                                                   .rows = kRows,
                                                   .sources = patients::table,
                                                   .functionKeys = true});

inline constexpr ControlRef kSerial = ref(kRows, u"Text1");
inline constexpr ControlRef kCount = ref(kRows, u"Text2");
inline constexpr ControlRef kPosition = ref(kRows, u"Text3");

}  // namespace records::patient_list_rows

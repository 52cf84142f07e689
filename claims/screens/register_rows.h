#pragma once

#include <array>
#include <tuple>
#include <utility>

#include "claims/core/register.h"
#include "claims/screens/register_screen.h"
#include "platform/screen/declare.h"
#include "platform/screen/list_screen.h"

// The rows of both register screens, for their class alone. They differ in their fields and in the notes on
// them.

namespace claims::register_rows {

using namespace screen;

template <std::size_t... Sizes>
consteval auto concat(const std::array<Row, Sizes>&... parts) {
  return std::apply([](const auto&... rows) { return std::array{rows...}; }, std::tuple_cat(parts...));
}

consteval auto listRows(std::span<const GridColumn> columns, std::span<const char16_t* const> keys) {
  return std::array{
      Row{Grid{.name = {u"DBGrid1"}, .caption = u"登録の一覧", .columns = columns}},
      Row{Group{.name = {u"Frame1"}, .caption = u"検索", .columns = 3}},
      Row{Combo{.name = {u"Combo1"},
                .caption = u"検索項目:",
                .bind = Unbound{u"the column to search"},
                .items = keys}},
      Row{TextField{.name = {u"Text1"},
                    .caption = u"検索文字:",
                    .bind = Unbound{u"the text to search"},
                    .onEnter = call<&RegisterScreen::search>}},
      Row{Command{.name = {u"Command1"}, .caption = u"検索", .run = run<&RegisterScreen::search>}},
      Row{EndGroup{}},
      Row{Bar{}},
      Row{Command{.name = {u"cmdAdd"}, .caption = u"新規", .run = run<&RegisterScreen::startNew>}},
      Row{Note{.name = {u"Label1"},
               .caption = u"新規ボタンを押してから下記に正確に書き込んだ上、登録ボタンを押して下さい。",
               .spoken = true}},
      Row{EndBar{}},
  };
}

/// The grid shows the fields in their order.
template <std::size_t Count, std::size_t... Index>
consteval auto gridColumns(const RegisterField (&fields)[Count], std::index_sequence<Index...>) {
  return std::array{GridColumn{fields[Index].column, fields[Index].label}...};
}

consteval TextField field(int index, const RegisterField& field, const char16_t* tip) {
  return TextField{.name = {u"txtFields", index},
                   .caption = field.label,
                   .bind = field.column,
                   .limit = field.limit > 0 ? field.limit : screen::kNoLimit,
                   .width = 40,
                   .tip = tip};
}

template <std::size_t Count, std::size_t... Index>
consteval auto fieldRows(const RegisterField (&fields)[Count], const std::array<const char16_t*, Count>& tips,
                         std::index_sequence<Index...>) {
  return std::array{Row{Group{.name = {u"Frame2"}, .caption = u"登録の内容", .columns = 2}},
                    Row{field(int(Index), fields[Index], tips[Index])}..., Row{EndGroup{}}};
}

consteval auto commandRows() {
  return std::array{
      Row{Bar{}},
      Row{Command{.name = {u"cmdUpdate"}, .caption = u"登録", .run = run<&RegisterScreen::storeRow>}},
      Row{Command{.name = {u"cmdDelete"}, .caption = u"削除", .run = run<&RegisterScreen::removeRow>}},
      Row{Command{.name = {u"Command2"},
                  .caption = u"左記データを保険申請に代入",
                  .run = run<&RegisterScreen::copyToClaim>}},
      Row{Command{.name = {u"cmdClose"}, .caption = u"閉じる", .run = run<&RegisterScreen::finish>}},
      Row{EndBar{}},
  };
}

inline constexpr auto kDoctorColumns =
    gridColumns(kDoctorFields, std::make_index_sequence<std::size(kDoctorFields)>());
inline constexpr auto kDoctorKeyNames = namesOf(kDoctorKeys);
inline constexpr std::array kDoctorTips = {u"全角50文字まで", u"半角32文字まで", u"全角50文字まで", u"住所",
                                           u"全角16文字まで"};
inline constexpr auto kDoctorRows = concat(
    listRows(kDoctorColumns, kDoctorKeyNames),
    std::array{Row{Note{.name = {u"Label2"},
                        .caption = u"氏名と病院名は全角50文字まで、フリガナは半角32文字まで、TELは全角16"
                                   u"文字まで"}}},
    fieldRows(kDoctorFields, kDoctorTips, std::make_index_sequence<std::size(kDoctorFields)>()),
    commandRows());

inline constexpr char16_t kExample1[] = u"（記入例）府中市→府中";
inline constexpr char16_t kExample2[] = u"（記入例）品川社保→品川";
inline constexpr auto kInsurerColumns =
    gridColumns(kInsurerFields, std::make_index_sequence<std::size(kInsurerFields)>());
inline constexpr auto kInsurerKeyNames = namesOf(kInsurerKeys);
inline constexpr std::array kInsurerTips = {u"全角20文字まで", u"番号", u"30文字まで"};
inline constexpr auto kInsurerRows = concat(
    listRows(kInsurerColumns, kInsurerKeyNames),
    std::array{
        Row{Note{
            .name = {u"Label2"},
            .caption =
                u"（注）保険者名称は、受領委任の申請総括表で抽出に必要ですので必ず入力してください。（1文字"
                u"でも異なると別の保険者と認識してしまいます。）",
            .spoken = true}},
        Row{Bar{}}, Row{Note{.name = {u"Label3"}, .caption = kExample1, .spoken = true}},
        Row{Note{.name = {u"Label4"}, .caption = kExample2, .spoken = true}},
        Row{Note{.name = {u"Label5"}, .caption = u"名称は全角20文字まで、所在地は30文字まで"}},
        Row{EndBar{}}},
    fieldRows(kInsurerFields, kInsurerTips, std::make_index_sequence<std::size(kInsurerFields)>()),
    commandRows());

}  // namespace claims::register_rows

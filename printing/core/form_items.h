#pragma once

#include <QString>
#include <cstddef>
#include <string_view>

// The items of the claim forms from 2024/10 that the mapping writes. An item that is not in the table does
// not compile, and a test holds the table against the templates.

namespace printing {

/// The forms that hold an item.
enum class Holds { Both, Acupuncture, Massage, Neither };

/// An item, or with `last` the family name<first> .. name<last>.
struct FormItem {
  const char16_t* name;
  Holds holds = Holds::Both;
  int first = 0;
  int last = 0;
  const char* why = nullptr;  ///< why no form holds it
};

/// All but the amount boxes (dain).
// clang-format off
inline constexpr FormItem kFormItems[] = {
    // Title and upper part.
    {u"Date"}, {u"GG4"}, {u"YY4"}, {u"MM4"}, {u"MM5"}, {u"KikanCode"}, {u"KikanCode1"}, {u"KoukiCode"},
    {u"HokenTypeT"}, {u"HokenType_4"}, {u"Shikai"}, {u"HokenNo_", Holds::Both, 1, 8},
    {u"Name0_", Holds::Both, 1, 8}, {u"KouhiFutan_", Holds::Both, 1, 8}, {u"KouhiJyu_", Holds::Both, 1, 8},
    {u"Kushi_", Holds::Both, 1, 8}, {u"Jyukyu_", Holds::Both, 1, 8}, {u"H_M_Circle", Holds::Both, 1, 3},
    {u"hutan", Holds::Both, 1, 5}, {u"betten1"}, {u"Kyuufu_", Holds::Both, 1, 2},
    {u"Kyuufu_3", Holds::Neither, 0, 0, "7 of ten has no printed place"},
    // 被保険者欄.
    {u"Name2_1"}, {u"Name2_2"}, {u"Name2_3"}, {u"Zokugara"}, {u"Name7"}, {u"Name8"}, {u"Name5_4"},
    {u"HHokenOtoko2"}, {u"HHokenOnna2"}, {u"wa1_", Holds::Both, 1, 5}, {u"YY1"}, {u"MM1"}, {u"DD1"},
    {u"GG2"}, {u"YY2"}, {u"MM2"}, {u"DD2"}, {u"Name6", Holds::Massage}, {u"Name9"}, {u"Name9_1"},
    {u"Name9_2"}, {u"gyoumu1"}, {u"gyoumu3"}, {u"dai3_ta"}, {u"dai3_ta1"}, {u"sebasyo1"}, {u"sebasyo2"},
    // 施術内容欄.
    {u"GG7"}, {u"YY7"}, {u"MM7"}, {u"DD7"}, {u"GG9"}, {u"YY9"}, {u"MM9"}, {u"DD9"}, {u"GG10"}, {u"YY10"},
    {u"MM10"}, {u"DD10"},
    {u"DD10_2", Holds::Neither, 0, 0, "a second place of the last day on older forms"}, {u"seikyu2"},
    {u"tenki4"}, {u"nyuuin2", Holds::Neither, 0, 0, "入院の別 is on older forms"},
    {u"syoubyou", Holds::Acupuncture, 1, 7}, {u"Name49", Holds::Acupuncture},
    {u"Name49_2", Holds::Acupuncture}, {u"Name49_3", Holds::Acupuncture}, {u"Name50", Holds::Acupuncture},
    {u"Syoujyou", Holds::Massage}, {u"Syoujyou1", Holds::Massage}, {u"Syoujyou3", Holds::Massage},
    {u"Syoujyou4", Holds::Massage}, {u"denryou", Holds::Acupuncture, 1, 3},
    {u"syokaijutu3", Holds::Acupuncture}, {u"kaisu1_", Holds::Massage, 1, 5},
    {u"kaisu2_", Holds::Massage, 1, 4}, {u"YY3"}, {u"MM3"}, {u"itibu", Holds::Both, 1, 3},
    {u"Name", Holds::Both, 21, 26}, {u"Name700"}, {u"day", Holds::Both, 1, 31}, {u"Name16"},
    {u"ouri", Holds::Both, 1, 3}, {u"sonota1"}, {u"sonota2"},
    // 施術証明欄, 申請欄, 支払機関欄, 同意記録, the mandate.
    {u"sejutuNO"}, {u"tkkubun1"}, {u"tkkubun2"}, {u"semeisyou1"}, {u"yuubin2"}, {u"Name57"}, {u"Name57_3"},
    {u"Name58"}, {u"Name11"}, {u"Name56"}, {u"Name11_2"}, {u"Name11_3"}, {u"GG11"}, {u"YY11"}, {u"MM11"},
    {u"DD11"}, {u"GG12"}, {u"YY12"}, {u"MM12"}, {u"DD12"}, {u"GG13"}, {u"YY13"}, {u"MM13"}, {u"DD13"},
    {u"GG14"}, {u"YY14"}, {u"MM14"}, {u"DD14"}, {u"GG15"}, {u"YY15"}, {u"MM15"}, {u"DD15"},
    {u"JUININ", Holds::Both, 1, 3}, {u"Name48"}, {u"Name48_1"}, {u"Name48_2"}, {u"yuubin1"}, {u"Name12"},
    {u"Name5_3"}, {u"Name5_5"}, {u"HHokenTel"},
    {u"HHokenAdd", Holds::Neither, 0, 0, "the address a third time, on older forms"},
    {u"JigyouName", Holds::Neither, 0, 0, "事業所 is on older forms"},
    {u"JigyouAdd", Holds::Neither, 0, 0, "事業所 is on older forms"}, {u"siharai_kbn"}, {u"Name14"},
    {u"Name47"}, {u"Name471"}, {u"yokin2"}, {u"kinyuu3"}, {u"kinyuu6"},
    {u"kouza2", Holds::Neither, 0, 0, "no box for the whole account number"}, {u"kouza3"}, {u"kouza4"},
    {u"kouza_num", Holds::Both, 1, 8}, {u"Name17"}, {u"Name17_2"}, {u"Name18_1"}, {u"Name18_2"},
    {u"Name18_3"}, {u"Name20"}, {u"Text369"}, {u"Name19"}, {u"youkaryuki1"}, {u"youkaryuki2"}, {u"Name13"},
    {u"Name5_6"}, {u"Name5_7"},
    // What overrides the blocks at the end.
    {u"T_seibetu2", Holds::Neither, 0, 0, "on older forms"}, {u"Text66"}, {u"Text67"}, {u"Text573"},
    {u"Text382"}, {u"Text430"}, {u"Text432"}, {u"Text433"},
    {u"Line500", Holds::Neither, 0, 0, "the seals of the papers of 2019"},
    {u"Text104", Holds::Neither, 0, 0, "the seals of the papers of 2019"},
    {u"Line501", Holds::Neither, 0, 0, "the seals of the papers of 2019"},
    {u"Text106", Holds::Neither, 0, 0, "the seals of the papers of 2019"},
    {u"Line504", Holds::Neither, 0, 0, "the seals of the papers of 2019"},
    {u"Text427", Holds::Neither, 0, 0, "the seals of the papers of 2019"},
};
// clang-format on

namespace detail {

/// The number after the stem, 0 where the name is another one.
consteval int numberAfter(std::u16string_view stem, std::u16string_view name) {
  if (!name.starts_with(stem) || name.size() == stem.size() || name[stem.size()] == u'0') return 0;
  int number = 0;
  for (const char16_t c : name.substr(stem.size())) {
    if (c < u'0' || c > u'9') return 0;
    number = number * 10 + (c - u'0');
  }
  return number;
}

consteval bool isItem(std::u16string_view name) {
  for (const FormItem& row : kFormItems) {
    if (row.last == 0 && name == row.name) return true;
    if (row.last == 0) continue;
    const int number = numberAfter(row.name, name);
    if (number >= row.first && number <= row.last) return true;
  }
  return false;
}

}  // namespace detail

/// An item of the forms.
class Item {
 public:
  consteval Item(const char16_t* name) : m_name(name) {
    if (!detail::isItem(name)) throw "the forms have no such item";
  }
  constexpr const char16_t* name() const { return m_name; }
  constexpr operator QStringView() const { return m_name; }

 private:
  const char16_t* m_name;
};

/// A family of items, counted by number.
class ItemFamily {
 public:
  consteval ItemFamily(const char16_t* stem) {
    for (const FormItem& row : kFormItems)
      if (row.last != 0 && std::u16string_view(row.name) == stem) m_row = &row;
    if (m_row == nullptr) throw "the forms have no such family";
  }
  constexpr const char16_t* stem() const { return m_row->name; }
  constexpr int first() const { return m_row->first; }
  constexpr int last() const { return m_row->last; }
  QString at(int number) const { return QString::fromUtf16(m_row->name) + QString::number(number); }

 private:
  const FormItem* m_row = nullptr;
};

}  // namespace printing

#pragma once

#include <initializer_list>

namespace printing {

/// The edition of a form: which paper is in the printer. Named by the month from which it is in use, and by
/// the era word that is printed on it where two differ in nothing else.
enum class Edition {
  None,              ///< no option of the printing screen is chosen
  From202410,        ///< 令和６年１０月からの新用紙
  From202104,        ///< 令和3年4月からの新用紙（丸印無の印刷）
  From202012,        ///< 令和2年12月からの新用紙（受領委任の印刷）
  From201901Reiwa,   ///< 「令和印字」平成31年1月からの新用紙（受領委任の印刷）
  From201901Heisei,  ///< 「平成印字」平成31年1月からの新用紙（受領委任の印刷）
  From201810Reiwa,  ///< 「令和印字」平成30年10月からの新用紙（受領委任でない保険者の印刷）
  From201810Heisei,  ///< 「平成印字」平成30年10月からの用紙（施術報告書交付料の表示印刷）
  VisitsUpTo4km,     ///< 往療欄が往療4kmまで・4km超の表示印刷
  VisitsUpTo2km,     ///< 往療欄が往療2kmまで・加算の表示印刷
  UpToVersion511,    ///< Ver5.11までの前用紙, on the oldest printing screen
  AfterVersion511,   ///< the other option of the oldest printing screen
  AichiAssociation,  ///< the newest paper of 愛知県鍼灸マッサージ師会 before 2024/10
  Unknown,           ///< an option that the printing screen lacks
};
inline constexpr int kEditions = static_cast<int>(Edition::Unknown) + 1;

/// Some of the editions.
class EditionSet {
 public:
  consteval EditionSet(std::initializer_list<Edition> editions) {
    for (const Edition edition : editions) m_bits |= bit(edition);
  }
  /// Whatever is chosen, and no edition chosen.
  static consteval EditionSet all() {
    EditionSet set({});
    set.m_bits = (1U << kEditions) - 1;
    return set;
  }
  constexpr bool contains(Edition edition) const { return (m_bits & bit(edition)) != 0; }

 private:
  static constexpr unsigned bit(Edition edition) { return 1U << static_cast<int>(edition); }
  unsigned m_bits = 0;
};

}  // namespace printing

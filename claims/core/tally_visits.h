#pragma once

#include <QString>
#include <array>

#include "claims/core/claim_record.h"
#include "claims/core/day_codes.h"

namespace claims {

/// Visits of one token.
struct VisitCounts {
  int one = 0;     ///< v1
  int two = 0;     ///< v2
  int small = 0;   ///< v3 to v9
  int large = 0;   ///< v10 to v20
  int sudden = 0;  ///< t
  /// By the number of the form: 0 ①, 1 ②, 2 ③ 3 to 9, 3 ③ 10 and more.
  int of(int form) const;
};

/// The tokens: a to f, g1 to g5, i1 to i5, j1 to j5, h1 to h4.
inline constexpr int kTokens = 25;
/// Index of a token; -1 for none of them (h5 is none).
int tokenIndex(char16_t letter, int number = 0);
const char16_t* tokenName(int index);

/// Counts of a claim from 2024/10. A visit by 訪問施術 (v1 to v20) leaves the counters of what its fee
/// contains untouched: はり, 灸, one art, two arts and the areas. What is charged in addition, 電療,
/// 温罨法, 電気光線器具 and 徒手矯正術, counts on every treated day.
struct VisitsTally {
  int hari = 0;
  int kyu = 0;
  int oneArt = 0;
  int twoArts = 0;
  int electric = 0;
  int warm = 0;
  int warmLight = 0;
  int treatmentDays = 0;  ///< days whose cell is not blank
  int suddenDays = 0;     ///< treated days with t, once also where the day holds two tokens
  int visitDays = 0;      ///< treated days with t or v1 to v20
  char16_t first = 0;     ///< first acupuncture letter of the month, a to f
  std::array<int, kTokens> plain{};
  std::array<VisitCounts, kTokens> visits{};

  int count(char16_t letter, int number = 0) const { return plain[at(letter, number)]; }
  const VisitCounts& visitsOf(char16_t letter, int number = 0) const { return visits[at(letter, number)]; }
  /// Plain massage days of N areas: g, i and j together.
  int areaDays(int areas) const { return count(u'g', areas) + count(u'i', areas) + count(u'j', areas); }
  /// Massage days of N areas at a visit form (0 to 3).
  int areaVisits(int areas, int form) const;
  /// Days by one art (1) or two arts (2) at a visit form (0 to 3).
  int artVisits(int arts, int form) const;

 private:
  static size_t at(char16_t letter, int number) { return static_cast<size_t>(tokenIndex(letter, number)); }
};

VisitsTally tallyVisits(const ClaimRecord& claim);

}  // namespace claims

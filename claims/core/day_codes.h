#pragma once

#include <QString>
#include <array>
#include <cstdint>

#include "claims/core/kinds.h"

namespace claims {

/// What one day's code says. Letters are lower case and half width; nothing else is read as one.
///
/// A code that is exactly one letter a to j is that letter; besides, each token of a letter g, h, i, j and
/// a digit 1 to 5 counts anywhere in the code, and once however often it occurs.
class DayCode {
 public:
  explicit DayCode(const QString& code);

  bool blank() const { return m_blank; }
  /// The one letter that the code consists of, 0 where it is anything else.
  char16_t exact() const { return m_exact; }
  /// Whether the code contains the token: letter g, h, i or j, number 1 to 5.
  bool has(char16_t letter, int number) const { return (m_tokens >> bit(letter, number)) & 1U; }
  bool hasToken() const { return m_tokens != 0; }
  /// The exact letter, else the letter of the first token; 0: neither.
  char16_t leadingLetter() const { return m_leading; }

 private:
  static unsigned bit(char16_t letter, int number) {
    return static_cast<unsigned>((letter - u'g') * 5 + number - 1);
  }
  bool m_blank;
  char16_t m_exact = 0;
  char16_t m_leading = 0;
  std::uint32_t m_tokens = 0;
};

/// Form of a visit entry from 2024/10: t or v1 to v20.
enum class VisitForm { None, Sudden, One, Two, Small, Large, Unknown };
/// 訪問施術 by the number of patients seen: v1, v2, v3 to v9, v10 to v20. Any other text is Unknown.
VisitForm visitForm(const QString& entry);
/// Distance entry of the older row 往療距離: 1 to 20, 0 for any other text.
int visitDistance(const QString& entry);

/// Checks on leaving a cell of the day grid; the message, or null: the entry is right.
QString codeEntryMessage(const QString& code, Kind kind);
QString visitEntryMessage(const QString& entry, bool isAfter202410);

}  // namespace claims

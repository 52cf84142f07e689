#include "platform/text/fold.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <array>

namespace text {
namespace {

constexpr char16_t kVoiced = u'\u3099';
constexpr char16_t kSemiVoiced = u'\u309A';

/// What one UTF-16 unit becomes. The width forms are the only compatibility characters that are folded:
/// ① or ㈱ are other characters to the user than 1 or (株).
char16_t foldedUnit(char16_t unit, const icu::Normalizer2& compatibility) {
  UChar32 folded = unit;
  if ((unit >= 0xFF00 && unit <= 0xFFEF) || unit == 0x3000) {
    icu::UnicodeString plain;
    if (compatibility.getDecomposition(unit, plain) && plain.length() == 1) folded = plain.char32At(0);
  }
  const bool katakana = (folded >= 0x30A1 && folded <= 0x30F6) || folded == 0x30FD || folded == 0x30FE;
  if (katakana) return static_cast<char16_t>(folded - 0x60);
  if (folded == 0x309B) return kVoiced;
  if (folded == 0x309C) return kSemiVoiced;
  const UChar32 lower = u_foldCase(folded, U_FOLD_CASE_DEFAULT);
  return lower <= 0xFFFF ? static_cast<char16_t>(lower) : unit;
}

using Table = std::array<char16_t, 0x10000>;

const Table& foldTable() {
  static const Table table = [] {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* compatibility = icu::Normalizer2::getNFKCInstance(status);
    Table made{};
    for (size_t unit = 0; unit < made.size(); ++unit)
      made[unit] = foldedUnit(static_cast<char16_t>(unit), *compatibility);
    return made;
  }();
  return table;
}

/// The letter with its voiced mark, 0 if the two do not combine.
char16_t joined(char16_t letter, char16_t mark) {
  static const icu::Normalizer2* composer = [] {
    UErrorCode status = U_ZERO_ERROR;
    return icu::Normalizer2::getNFCInstance(status);
  }();
  const UChar32 pair = composer->composePair(letter, mark);
  return pair > 0 && pair <= 0xFFFF ? static_cast<char16_t>(pair) : u'\0';
}

}  // namespace

void foldForComparison(QStringView text, std::u16string& out) {
  const Table& table = foldTable();
  const size_t start = out.size();
  out.reserve(start + static_cast<size_t>(text.size()));
  for (const QChar letter : text) {
    const char16_t folded = table[letter.unicode()];
    if ((folded == kVoiced || folded == kSemiVoiced) && out.size() > start) {
      if (const char16_t pair = joined(out.back(), folded)) {
        out.back() = pair;
        continue;
      }
    }
    out.push_back(folded);
  }
}

QString foldForComparison(QStringView text) {
  std::u16string folded;
  foldForComparison(text, folded);
  return QString::fromStdU16String(folded);
}

}  // namespace text

#pragma once

#include <QString>
#include <optional>

namespace frame {

/// PrefectureEdition: "北海道版" for "01" to "沖縄県版" for "47", in the national order; nothing for any
/// other code.
std::optional<QString> prefectureEdition(const QString& code);

/// The installation record of the prefecture: the code in a text file of the program folder. Blank if
/// the file is missing or has no code of one or two digits.
QString readPrefectureCode(const QString& programFolder);

/// A code as it is stored: a text of one character gets a leading "0".
QString twoDigitPrefecture(const QString& text);

/// Name of the installation record.
inline constexpr char16_t kPrefectureFile[] = u"prefecture.txt";

}  // namespace frame

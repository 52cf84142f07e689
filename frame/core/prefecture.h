#pragma once

#include <QString>
#include <optional>

namespace frame {

/// The prefectures by their national number. None: a code that names no prefecture.
enum class Prefecture {
  None,
  Hokkaido,
  Aomori,
  Iwate,
  Miyagi,
  Akita,
  Yamagata,
  Fukushima,
  Ibaraki,
  Tochigi,
  Gunma,
  Saitama,
  Chiba,
  Tokyo,
  Kanagawa,
  Niigata,
  Toyama,
  Ishikawa,
  Fukui,
  Yamanashi,
  Nagano,
  Gifu,
  Shizuoka,
  Aichi,
  Mie,
  Shiga,
  Kyoto,
  Osaka,
  Hyogo,
  Nara,
  Wakayama,
  Tottori,
  Shimane,
  Okayama,
  Hiroshima,
  Yamaguchi,
  Tokushima,
  Kagawa,
  Ehime,
  Kochi,
  Fukuoka,
  Saga,
  Nagasaki,
  Kumamoto,
  Oita,
  Miyazaki,
  Kagoshima,
  Okinawa,
};

/// The prefecture of a code of two digits, "01" to "47"; None for any other text.
Prefecture prefectureOf(const QString& code);

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

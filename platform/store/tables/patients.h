#pragma once

#include "platform/store/column.h"

// 臨床QV: the patient register, one row a patient.

namespace patients {

namespace detail {
using enum store::ColumnType;
inline constexpr store::ColumnsText kTableText[] = {
    {Text255, false,
     u"患者ID,カルテ番号,テキスト5,ふりがな,氏名,性別,生年月日,年齢,職業,会社名,郵便番号,住所1..住所3,"
     u"電話1,電話2,携帯,FAX,キーワード1,キーワード2,区分,紹介してくれた人,紹介した人,担当者,割付"},
    {LongText, false, u"既往症"},
    {Text255, false, u"初診日,日付1,テキスト1..テキスト3"},
    {LongText, false, u"症状,治療,メモ1"},
    {Text255, true,
     u"個人番号1..個人番号3,マ保険種類,マ保険者名,マ保険者番号,マ交付者名,マ記号,マ番号,マ氏名,"
     u"マ生年月日,マ性別,マ適用開始年月日,マ世帯主氏名,マ住所,マ有効期限,マ交付年月日,"
     u"t1..t31,t41..t50"},  // the series stops at 31 and starts again at 41, and stays that way
    {Integer, true, u"tnum1..tnum10"},
    {YesNo, true, u"yn1..yn10"},
    {LongText, true, u"tmemo1..tmemo10"},
};
inline constexpr auto kTableRows = store::columnRows<kTableText>();
}  // namespace detail

/// The patient register.
inline constexpr store::Table table(u"臨床QV", detail::kTableRows);

inline constexpr store::Column id = table[u"ID"];
inline constexpr store::Column patientNumber = table[u"患者ID"];  ///< as typed by the practice
inline constexpr store::Column chartNumber = table[u"カルテ番号"];
inline constexpr store::Column serial =
    table[u"テキスト5"];  ///< PatientSerial: visits, claims and bookings name their patient by it
inline constexpr store::Column kana = table[u"ふりがな"];
inline constexpr store::Column name = table[u"氏名"];
inline constexpr store::Column sex = table[u"性別"];        ///< 男, 女
inline constexpr store::Column birth = table[u"生年月日"];  ///< as typed: era or western form
inline constexpr store::Column age = table[u"年齢"];        ///< years as text, computed on show
inline constexpr store::Column occupation = table[u"職業"];
inline constexpr store::Column company = table[u"会社名"];
inline constexpr store::Column zip = table[u"郵便番号"];
inline constexpr store::Series address = table.series(u"住所", 1, 3);
inline constexpr store::Series telephone = table.series(u"電話", 1, 2);
inline constexpr store::Column mobile = table[u"携帯"];
inline constexpr store::Column fax = table[u"FAX"];
inline constexpr store::Series keyword = table.series(u"キーワード", 1, 2);
inline constexpr store::Column group = table[u"区分"];
inline constexpr store::Column referredBy = table[u"紹介してくれた人"];
inline constexpr store::Column referred = table[u"紹介した人"];
inline constexpr store::Column practitioner = table[u"担当者"];
inline constexpr store::Column allotted = table[u"割付"];
inline constexpr store::Column history = table[u"既往症"];
inline constexpr store::Column firstVisit = table[u"初診日"];
inline constexpr store::Column date1 = table[u"日付1"];  ///< stored and shown only
inline constexpr store::Series ownText =
    table.series(u"テキスト", 1, 3);  ///< fields whose captions the practice chooses
inline constexpr store::Column symptoms = table[u"症状"];
inline constexpr store::Column treatment = table[u"治療"];
inline constexpr store::Column memo = table[u"メモ1"];

// Columns of the growth run. No screen of this program fills them yet; they carry what other programs of the
// practice wrote there.
inline constexpr store::Series personalNumber = table.series(u"個人番号", 1, 3);
inline constexpr store::Column insuranceKind = table[u"マ保険種類"];
inline constexpr store::Column insurerName = table[u"マ保険者名"];
inline constexpr store::Column insurerNumber = table[u"マ保険者番号"];
inline constexpr store::Column cardHolder = table[u"マ交付者名"];
inline constexpr store::Column cardSymbol = table[u"マ記号"];
inline constexpr store::Column cardNumber = table[u"マ番号"];
inline constexpr store::Column cardName = table[u"マ氏名"];
inline constexpr store::Column cardBirth = table[u"マ生年月日"];
inline constexpr store::Column cardSex = table[u"マ性別"];
inline constexpr store::Column cardFrom = table[u"マ適用開始年月日"];
inline constexpr store::Column cardHead = table[u"マ世帯主氏名"];
inline constexpr store::Column cardAddress = table[u"マ住所"];
inline constexpr store::Column cardUntil = table[u"マ有効期限"];
inline constexpr store::Column cardIssued = table[u"マ交付年月日"];
inline constexpr store::Series spareText =
    table.series(u"t", 1, 31);  ///< reserve; the series stops at 31 and starts again at 41
inline constexpr store::Series spareText41 = table.series(u"t", 41, 50);    ///< reserve
inline constexpr store::Series spareNumber = table.series(u"tnum", 1, 10);  ///< reserve
inline constexpr store::Series spareMark = table.series(u"yn", 1, 10);      ///< reserve
inline constexpr store::Series spareMemo = table.series(u"tmemo", 1, 10);   ///< reserve

}  // namespace patients

#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <span>

#include "frame/core/data_folders.h"
#include "platform/store/sources.h"
#include "platform/text/result.h"

namespace claims {

/// A column of a register: its label on the screen, and the column of the claim that takes its value.
struct RegisterField {
  const char16_t* column;
  const char16_t* label;
  const char16_t* claimColumn;
  int limit = 0;  ///< characters that can be typed, 0: no limit of its own
};

/// A register behind the lists of the claim form.
struct Register {
  const char16_t* table;
  int folder;                             ///< its file's entry of DataFolders
  const char16_t* statement;              ///< reads the rows in the order of the lists
  std::span<const RegisterField> fields;  ///< in the order in which they are checked
  std::span<const char16_t* const> keys;  ///< columns to search in, in the order of their list
  const char16_t* deleteQuestion;
};

inline constexpr RegisterField kDoctorFields[] = {{u"氏名", u"氏名", u"同意医師氏名", 50},
                                                  {u"フリガナ", u"フリガナ", u"同意医師フリガナ", 32},
                                                  {u"病院名", u"病院名", u"医療機関名", 50},
                                                  {u"住所", u"住所", u"同意医師住所"},
                                                  {u"TEL", u"TEL", u"同意医師の電話番号", 16}};
inline constexpr const char16_t* kDoctorKeys[] = {u"氏名", u"病院名", u"TEL", u"フリガナ", u"住所"};
/// The consenting doctors.
inline constexpr Register kDoctorRegister{
    u"同意医師", frame::folder::kDoctors,          store::source::kDoctors, kDoctorFields,
    kDoctorKeys, u"　同意医師のデータを削除します"};

inline constexpr RegisterField kInsurerFields[] = {{u"名称", u"名称", u"保険者名称", 20},
                                                   {u"番号", u"番号", u"保険者番号"},
                                                   {u"所在地", u"所在地", u"保険者住所", 30}};
inline constexpr const char16_t* kInsurerKeys[] = {u"番号", u"名称", u"所在地"};
/// The insurers. Their names must be exact: the summary sheets group by them.
inline constexpr Register kInsurerRegister{
    u"保険者",    frame::folder::kInsurers,       store::source::kInsurers, kInsurerFields,
    kInsurerKeys, u"　保険者のデータを削除します"};

/// The values of a register's rows, in the order of its fields.
using RegisterRows = QVector<QStringList>;

/// The register's rows in the order of the claim form's lists, at most 1,000. A fault in the engine's words.
text::Result<RegisterRows> readRegister(const Register& list, const frame::DataFolders& folders);

/// Index of the first blank value, -1 where there is none: a row of a register never has a blank field.
int firstBlank(const QStringList& values);
/// What a blank field says.
QString blankFieldText(const QString& label);

}  // namespace claims

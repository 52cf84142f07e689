#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <array>
#include <span>

#include "frame/core/data_folders.h"
#include "platform/store/sources.h"
#include "platform/store/tables/claims.h"
#include "platform/store/tables/registers.h"
#include "platform/text/result.h"

namespace claims {

/// A column of a register: its label on the screen, and the column of the claim that takes its value.
struct RegisterField {
  store::Column column;
  const char16_t* label;
  store::Column claimColumn;
  int limit = 0;  ///< characters that can be typed, 0: no limit of its own
};

/// A register that feeds lists of the claim form: of the doctors or of the insurers.
struct Register {
  const store::Table& table;
  int folder;                             ///< its file's entry of DataFolders
  const char16_t* statement;              ///< reads the rows in the order of the lists
  std::span<const RegisterField> fields;  ///< in the order in which they are checked
  std::span<const store::Column> keys;    ///< columns to search in, in the order of their list

  /// Index of the field that is this column of the register or of the claim; -1: none is.
  int fieldOf(const store::Column& column) const;
};

inline constexpr RegisterField kDoctorFields[] = {{doctors::name, u"氏名", claim::doctorName, 50},
                                                  {doctors::kana, u"フリガナ", claim::doctorKana, 32},
                                                  {doctors::hospital, u"病院名", claim::hospital, 50},
                                                  {doctors::address, u"住所", claim::doctorAddress},
                                                  {doctors::telephone, u"TEL", claim::doctorTelephone, 16}};
inline constexpr std::array kDoctorKeys = {doctors::name, doctors::hospital, doctors::telephone,
                                           doctors::kana, doctors::address};
/// The consenting doctors.
inline constexpr Register kDoctorRegister{doctors::table, frame::folder::kDoctors, store::source::kDoctors,
                                          kDoctorFields, kDoctorKeys};

inline constexpr RegisterField kInsurerFields[] = {{insurers::name, u"名称", claim::insurerName, 20},
                                                   {insurers::number, u"番号", claim::insurerNumber},
                                                   {insurers::address, u"所在地", claim::insurerAddress, 30}};
inline constexpr std::array kInsurerKeys = {insurers::number, insurers::name, insurers::address};
/// The insurers. Their names must be exact: the summary sheets group by them.
inline constexpr Register kInsurerRegister{insurers::table, frame::folder::kInsurers,
                                           store::source::kInsurers, kInsurerFields, kInsurerKeys};

/// The values of a register's rows, in the order of its fields.
using RegisterRows = QVector<QStringList>;

/// The register's rows in the order of the claim form's lists, at most 1,000. A fault in the database's
/// words.
text::Result<RegisterRows> readRegister(const Register& list, const frame::DataFolders& folders);

/// Index of the first blank value, -1: none is. A row of a register never has a blank field.
int firstBlank(const QStringList& values);
/// What a blank field says.
QString blankFieldText(const QString& label);

}  // namespace claims

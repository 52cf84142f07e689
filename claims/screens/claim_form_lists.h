#pragma once

#include <QString>
#include <QStringList>

#include "claims/core/register.h"

namespace claims {

/// The registers that feed the form's lists, read once when the form loads: a row that is added later shows
/// when the form is loaded again.
struct ClaimFormLists {
  RegisterRows doctors, insurers;
  QStringList faults;  ///< database error texts of registers that could not be read

  static ClaimFormLists read(const frame::DataFolders& folders);

  QStringList doctorNames() const;  ///< 同意医師のデータがありません: there is none
  QStringList hospitals() const;
  QStringList insurerNames() const;    ///< 名称のデータがありません
  QStringList insurerNumbers() const;  ///< 番号のデータがありません
  QStringList insurerAddresses() const;
};

}  // namespace claims

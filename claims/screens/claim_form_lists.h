#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include "frame/core/data_folders.h"

namespace claims {

/// One consenting doctor of the register.
struct DoctorRow {
  QString name, reading, address, telephone, hospital;
};
/// One insurer of the register.
struct InsurerRow {
  QString name, number, address;
};

/// The registers behind the form's lists, read once when the form loads: a row that is added later shows
/// when the form is loaded again.
struct ClaimFormLists {
  QVector<DoctorRow> doctors;
  QVector<InsurerRow> insurers;
  QStringList faults;  ///< engine texts of registers that could not be read

  static ClaimFormLists read(const frame::DataFolders& folders);

  QStringList doctorNames() const;  ///< 同意医師のデータがありません where there is none
  QStringList hospitals() const;
  QStringList insurerNames() const;    ///< 名称のデータがありません
  QStringList insurerNumbers() const;  ///< 番号のデータがありません
  QStringList insurerAddresses() const;
  /// The row behind a list position, nullptr where there is none (the sentence of an empty register).
  const DoctorRow* doctor(int position) const;
  const InsurerRow* insurer(int position) const;
};

}  // namespace claims

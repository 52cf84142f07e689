#pragma once

#include <QString>
#include <span>

#include "frame/core/patient.h"
#include "platform/store/record_field.h"

namespace records {

/// A visit of the ledger, texts as they were typed; the detail chart has further columns.
struct Visit {
  QString serial;  ///< of the patient
  QString name;    ///< of the patient
  QString birth;   ///< of the patient
  QString date;
  QString dateShadow;  ///< western form of `date`, see visit_dates.h
  QString summary;
  QString insurerPays;  ///< yen
  QString share;        ///< yen
  QString fee;          ///< yen

  static std::span<const store::Field<Visit>> fields();
};

/// The patient of a visit, as far as a visit knows about the patient.
frame::Patient patientOf(const Visit& visit);

}  // namespace records

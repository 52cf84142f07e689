#pragma once

#include <QString>
#include <span>

#include "platform/store/record_field.h"

namespace frame {

/// A patient of the register, texts as they were typed. The screen of a patient hands it on to a new claim,
/// a booking or a receipt.
struct Patient {
  QString serial;  ///< PatientSerial: visits, claims and bookings name their patient by it
  QString number;  ///< 患者ID
  QString chartNumber;
  QString kana;
  QString name;
  QString sex;
  QString birth;
  QString age;  ///< years, as computed when the patient was shown
  QString zip;
  QString address;  ///< the first line, or all three joined where one text is wanted
  QString address2;
  QString address3;
  QString telephone;
  QString firstVisit;

  static std::span<const store::Field<Patient>> fields();
};

/// The two or three lines of an address as one text.
QString wholeAddress(const Patient& patient);

}  // namespace frame

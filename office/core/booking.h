#pragma once

#include <QString>
#include <span>

#include "platform/store/record_field.h"

namespace office {

/// A row of the appointment book, texts as they were typed.
struct Booking {
  QString number;
  QString patientNumber;  ///< 患者ID, blank for somebody who is no patient yet
  QString patientName;
  QString patientSerial;
  QString year;
  QString month;
  QString day;
  QString weekday;
  QString time;
  QString dateShadow;  ///< "yyyy/m/d"; 31 February is in March here
  QString stamp;       ///< when it was stored last
  QString memo;

  static std::span<const store::Field<Booking>> fields();
};

/// Month and day as the lists say them: "6月15日".
QString dayInWords(const Booking& booking);

}  // namespace office

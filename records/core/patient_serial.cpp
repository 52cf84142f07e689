#include "records/core/patient_serial.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kDateDigits = 8;
constexpr int kClaimAddressLimit = 39;  // the address field of a new claim

}  // namespace

QString nextSerial(const QString& last, QDate today) {
  const QString date = today.toString(u"yyyyMMdd"_s);
  bool numeric = false;
  const qlonglong value = last.toLongLong(&numeric);
  if (numeric && last.left(kDateDigits) == date) return QString::number(value + 1);
  return date + u"001"_s;
}

QString joinedAddress(const QString& line1, const QString& line2, const QString& line3) {
  const QString joined = line1 + line2 + line3;
  if (joined.size() <= kClaimAddressLimit) return joined;
  // A character outside the basic plane is two units: it goes as a whole or not at all.
  const bool splitsPair = joined.at(kClaimAddressLimit).isLowSurrogate();
  return joined.left(splitsPair ? kClaimAddressLimit - 1 : kClaimAddressLimit);
}

}  // namespace records

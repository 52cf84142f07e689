#include "office/core/booking.h"

#include "platform/store/tables/bookings.h"

namespace office {
namespace {

constexpr store::Field<Booking> kFields[] = {
    {bookings::number, &Booking::number},
    {bookings::patientNumber, &Booking::patientNumber},
    {bookings::patientName, &Booking::patientName},
    {bookings::patientSerial, &Booking::patientSerial},
    {bookings::year, &Booking::year},
    {bookings::month, &Booking::month},
    {bookings::day, &Booking::day},
    {bookings::weekday, &Booking::weekday},
    {bookings::time, &Booking::time},
    {bookings::dateShadow, &Booking::dateShadow},
    {bookings::stamp, &Booking::stamp},
    {bookings::memo, &Booking::memo},
};

}  // namespace

std::span<const store::Field<Booking>> Booking::fields() { return kFields; }

QString dayInWords(const Booking& booking) { return booking.month + u'月' + booking.day + u'日'; }

}  // namespace office

#include "frame/core/patient.h"

#include "platform/store/tables/patients.h"

namespace frame {
namespace {

constexpr store::Field<Patient> kFields[] = {
    {patients::serial, &Patient::serial},
    {patients::patientNumber, &Patient::number},
    {patients::chartNumber, &Patient::chartNumber},
    {patients::kana, &Patient::kana},
    {patients::name, &Patient::name},
    {patients::sex, &Patient::sex},
    {patients::birth, &Patient::birth},
    {patients::age, &Patient::age},
    {patients::zip, &Patient::zip},
    {patients::address[1], &Patient::address},
    {patients::address[2], &Patient::address2},
    {patients::address[3], &Patient::address3},
    {patients::telephone[1], &Patient::telephone},
    {patients::firstVisit, &Patient::firstVisit},
};

}  // namespace

std::span<const store::Field<Patient>> Patient::fields() { return kFields; }

QString wholeAddress(const Patient& patient) { return patient.address + patient.address2 + patient.address3; }

}  // namespace frame

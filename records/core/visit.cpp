#include "records/core/visit.h"

#include "platform/store/tables/visits.h"

namespace records {
namespace {

constexpr store::Field<Visit> kFields[] = {
    {visits::patientSerial, &Visit::serial},
    {visits::name, &Visit::name},
    {visits::birth, &Visit::birth},
    {visits::date, &Visit::date},
    {visits::dateShadow, &Visit::dateShadow},
    {visits::summary, &Visit::summary},
    {visits::insurerPays, &Visit::insurerPays},
    {visits::share, &Visit::share},
    {visits::fee, &Visit::fee},
};

}  // namespace

std::span<const store::Field<Visit>> Visit::fields() { return kFields; }

frame::Patient patientOf(const Visit& visit) {
  frame::Patient patient;
  patient.serial = visit.serial;
  patient.name = visit.name;
  patient.birth = visit.birth;
  return patient;
}

}  // namespace records

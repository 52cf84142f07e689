#include "claims/core/era.h"

#include "claims/core/era_items.h"
#include "claims/core/subjects.h"

namespace claims {

const RecordVersion* KindRules::versionOf(QDate month) const {
  const RecordVersion* ruling = nullptr;
  for (const RecordVersion& version : versions)
    if (version.from.holdsIn(month)) ruling = &version;
  return ruling;
}

EraTable eras() {
  static const Era kEras[] = {
      {rule::kAlways,
       Regime::Steps,
       true,
       {stepsItems(), {}, Preview::StepsAcupuncture, twoBandSubject},
       {stepsItems(), {}, Preview::StepsMassage, twoBandSubject}},
      {rule::kTwoBandVisits,
       Regime::TwoBand,
       false,
       {twoBandItems(), {}, Preview::TwoBandAcupuncture, twoBandSubject},
       {twoBandItems(), {}, Preview::TwoBandMassage, twoBandSubject}},
      {rule::kVisitTreatment,
       Regime::Visits,
       false,
       {acupunctureItems(), acupunctureVersions(), Preview::VisitsAcupuncture, visitsAcupunctureSubject},
       {massageItems(), massageVersions(), Preview::VisitsMassage, visitsMassageSubject}},
  };
  return kEras;
}

const Era* eraOf(std::optional<QDate> month, Path path, EraTable table) {
  if (!month) return nullptr;
  auto era = table.begin();
  while (era + 1 != table.end() && (era + 1)->from.holdsIn(*month)) ++era;
  while (path == Path::Store && era->previewOnly) ++era;
  return &*era;
}

Preview previewOf(Kind kind, std::optional<QDate> month, EraTable table) {
  const Era* era = eraOf(month, Path::Preview, table);
  return era == nullptr || kind == Kind::None ? Preview::None : era->of(kind).preview;
}

}  // namespace claims

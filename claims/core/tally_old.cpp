#include "claims/core/tally_old.h"

#include <numeric>

#include "claims/core/day_codes.h"

namespace claims {
namespace {

/// One number for the whole month: the first one stays, any other makes it 0.
void unify(std::optional<int>& common, int number) { common = !common || *common == number ? number : 0; }

void takeFirst(OldTally& tally, const DayCode& code) {
  tally.first = code.leadingLetter();
  switch (code.exact()) {
    case u'a':
    case u'b':
      tally.firstFee = Fee::HariFirst;
      break;
    case u'c':
    case u'd':
      tally.firstFee = Fee::KyuFirst;
      break;
    case u'e':
    case u'f':
      tally.firstFee = Fee::HariKyuFirst;
      break;
    default:
      break;  // massage has no fee for the first day
  }
}

/// A massage token: g, i or j on so many areas.
void addMassage(OldTally& tally, char16_t letter, int areas) {
  ++tally.massageDays;
  tally.areaSum += areas;
  unify(tally.massageN, areas);
  if (letter == u'i') ++tally.warm;
  if (letter == u'j') ++tally.warmLight;
}

void addExact(OldTally& tally, char16_t letter) {
  if (letter == u'a' || letter == u'b') ++tally.hari;
  if (letter == u'c' || letter == u'd') ++tally.kyu;
  if (letter == u'e' || letter == u'f') ++tally.hariKyu;
  if (letter == u'b' || letter == u'd' || letter == u'f') ++tally.electric;
  if (letter == u'g' || letter == u'i' || letter == u'j') addMassage(tally, letter, 1);
  if (letter == u'h') ++tally.limbDays;
}

void addTokens(OldTally& tally, const DayCode& code) {
  for (int number = 1; number <= 5; ++number) {
    for (const char16_t letter : {u'g', u'i', u'j'}) {
      if (!code.has(letter, number)) continue;
      addMassage(tally, letter, number);
      tally.digitMassage = true;
    }
    if (!code.has(u'h', number)) continue;
    ++tally.limbDays;
    tally.limbSum += number;
    tally.digitLimb = true;
    unify(tally.limbN, number);
  }
}

void addVisit(OldTally& tally, const QString& entry) {
  const int distance = visitDistance(entry);
  if (distance == 0) return;
  ++(distance <= 4 ? tally.nearVisits : tally.farVisits);
  unify(tally.distance, distance);
}

}  // namespace

QString OldTally::localCountText() const {
  return massageN.value_or(0) == 0 ? QString(QLatin1String("")) : QString::number(*massageN);
}

OldTally tallyOld(const ClaimRecord& claim) {
  OldTally tally;
  const bool firstTicked = claim.ticked(QStringLiteral("初回有無"));
  for (int day = 1; day <= 31; ++day) {
    const DayCode code(claim.code(day));
    if (code.blank()) continue;
    addVisit(tally, claim.visit(day));
    if (code.exact() == 0 && !code.hasToken()) continue;
    ++tally.treatmentDays;
    if (firstTicked && tally.first == 0) takeFirst(tally, code);
    addExact(tally, code.exact());
    addTokens(tally, code);
  }
  return tally;
}

int StepVisits::total() const { return std::accumulate(count.begin(), count.end(), 0); }

StepVisits tallySteps(const ClaimRecord& claim) {
  StepVisits visits;
  int seen = 0;
  for (int day = 1; day <= 31; ++day) {
    if (claim.code(day).isEmpty()) continue;
    const int distance = visitDistance(claim.visit(day));
    if (distance < 2 || distance > 16 || distance % 2 != 0) continue;  // no other number is a step
    ++visits.count[static_cast<size_t>(distance / 2 - 1)];
    if (seen != 0 && seen != distance) visits.differing = true;
    seen = distance;
  }
  return visits;
}

}  // namespace claims

#include "claims/core/tally_two_band.h"

#include "claims/core/day_codes.h"

namespace claims {
namespace {

/// One number for the whole month: the first one stays, any other makes it 0.
void unify(std::optional<int>& common, int number) { common = !common || *common == number ? number : 0; }

void takeFirst(TwoBandTally& tally, const DayCode& code) {
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
void addMassage(TwoBandTally& tally, char16_t letter, int areas) {
  ++tally.massageDays;
  tally.areaSum += areas;
  unify(tally.massageN, areas);
  if (letter == u'i') ++tally.warm;
  if (letter == u'j') ++tally.warmLight;
}

void addExact(TwoBandTally& tally, char16_t letter) {
  if (letter == u'a' || letter == u'b') ++tally.hari;
  if (letter == u'c' || letter == u'd') ++tally.kyu;
  if (letter == u'e' || letter == u'f') ++tally.hariKyu;
  if (letter == u'b' || letter == u'd' || letter == u'f') ++tally.electric;
  if (letter == u'g' || letter == u'i' || letter == u'j') addMassage(tally, letter, 1);
  if (letter == u'h') ++tally.limbDays;
}

void addTokens(TwoBandTally& tally, const DayCode& code) {
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

void addVisit(TwoBandTally& tally, const QString& entry) {
  const int distance = visitDistance(entry);
  if (distance == 0) return;
  ++(distance <= 4 ? tally.nearVisits : tally.farVisits);
  unify(tally.distance, distance);
}

}  // namespace

TwoBandTally tallyTwoBand(const ClaimRecord& claim) {
  TwoBandTally tally;
  const bool firstTicked = claim.ticked(claim::hasFirst);
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

}  // namespace claims

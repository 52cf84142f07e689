// The day grid's counts.
#include "claims/core/era.h"
#include "claims/core/tally_two_band.h"
#include "claims/core/tally_visits.h"
#include "tools/rulecheck/claim_json.h"
#include "tools/rulecheck/ops.h"

namespace rulecheck {
namespace {

QJsonValue jsonOf(const std::optional<int>& number) { return number ? QJsonValue(*number) : QJsonValue(); }

QJsonObject twoBandCounters(const claims::ClaimRecord& claim) {
  const claims::TwoBandTally tally = claims::tallyTwoBand(claim);
  const QString first = tally.first == 0 ? QString(QLatin1String("")) : QString(QChar(tally.first));
  return {{"count1", tally.hari},
          {"count2", tally.kyu},
          {"count3", tally.hariKyu},
          {"count4", tally.electric},
          {"count7", tally.massageDays},
          {"count8", tally.limbDays},
          {"count9", tally.warm},
          {"count10", tally.warmLight},
          {"治療日数", tally.treatmentDays},
          {"初回", first},
          {"初回費用列", tally.firstFee ? claims::feeColumn(*tally.firstFee) : QString(QLatin1String(""))},
          {"areaSum", tally.areaSum},
          {"limbSum", tally.limbSum},
          {"digitMassage", tally.digitMassage},
          {"digitLimb", tally.digitLimb},
          {"massageN", jsonOf(tally.massageN)},
          {"limbN", jsonOf(tally.limbN)},
          {"nearVisits", tally.nearVisits},
          {"farVisits", tally.farVisits}};
}

QJsonObject visitsCounters(const claims::VisitsTally& tally) {
  QJsonObject counters{{"はり", tally.hari},
                       {"灸", tally.kyu},
                       {"1術", tally.oneArt},
                       {"2術", tally.twoArts},
                       {"電療", tally.electric},
                       {"温罨法", tally.warm},
                       {"電気光線器具", tally.warmLight},
                       {"治療日数", tally.treatmentDays}};
  for (int token = claims::tokenIndex(u'g', 1); token < claims::kTokens; ++token)
    counters[QString::fromUtf16(claims::tokenName(token))] = tally.plain[static_cast<size_t>(token)];
  return counters;
}

QJsonObject visitsByToken(const claims::VisitsTally& tally) {
  QJsonObject visits;
  for (int token = 0; token < claims::kTokens; ++token) {
    const claims::VisitCounts& counts = tally.visits[static_cast<size_t>(token)];
    visits[QString::fromUtf16(claims::tokenName(token))] = QJsonObject{{"v1", counts.one},
                                                                       {"v2", counts.two},
                                                                       {"v3", counts.small},
                                                                       {"v10", counts.large},
                                                                       {"t", counts.sudden}};
  }
  return visits;
}

}  // namespace

QJsonObject tally(const QJsonObject& request, Context&) {
  const claims::ClaimRecord claim = claimOf(request);
  const auto flags = claims::monthFlags(claim.get(claim::month), eraDates());
  if (!flags.month) return error(QStringLiteral("申請年月: not an era month"));
  if (claims::eraOf(flags.month, claims::Path::Store)->regime != claims::Regime::Visits)
    return {{"regime", "old"}, {"counters", twoBandCounters(claim)}};
  const claims::VisitsTally counted = claims::tallyVisits(claim);
  return {{"regime", "new"}, {"counters", visitsCounters(counted)}, {"visits", visitsByToken(counted)}};
}

}  // namespace rulecheck

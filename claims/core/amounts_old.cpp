#include "claims/core/amounts_parts.h"
#include "platform/text/number.h"

namespace claims {
namespace {

void appendRow(ClaimAmounts& result, const QString& label, int unit, int count) {
  if (count != 0) result.rows.append({label, unit, count, qint64{unit} * count});
}

/// Units of massage or manipulation: the sum of the numbers in the grid, or, where no number stands there,
/// the claim-wide number times the days; a text that is no number gives none.
int unitsOf(bool digits, int sum, const QString& claimWide, int days) {
  if (digits) return sum;
  return text::isNumeric(claimWide) ? static_cast<int>(text::intOf(claimWide)) * days : 0;
}

QString subjectOf(const ClaimAmounts& r) {
  switch (r.twoBand.first) {
    case u'a':
    case u'b':
      return QStringLiteral("鍼");
    case u'c':
    case u'd':
      return QStringLiteral("灸");
    case u'e':
    case u'f':
      return QStringLiteral("鍼灸");
    case 0:
      break;
    default:
      return QStringLiteral("マ術");
  }
  if (r.hariKyu != 0 || (r.hari != 0 && r.kyu != 0)) return QStringLiteral("鍼灸");
  if (r.hari != 0) return QStringLiteral("鍼");
  if (r.kyu != 0) return QStringLiteral("灸");
  if (r.area != 0 || r.limb != 0 || r.warm != 0 || r.warmLight != 0) return QStringLiteral("マ術");
  return {};
}

/// A kind's row; its amount is kept by name for the columns of the store.
void addKind(ClaimAmounts& result, const QString& label, Fee fee, int count, qint64& amount) {
  const int unit = result.fees.yen(fee);
  amount = qint64{unit} * count;
  appendRow(result, label, unit, count);
}

void addTreatments(const ClaimRecord& claim, ClaimAmounts& r) {
  const TwoBandTally& t = r.twoBand;
  if (t.firstFee) addKind(r, QStringLiteral("初回費用"), *t.firstFee, 1, r.first);
  addKind(r, QStringLiteral("はり"), Fee::Hari, t.hari, r.hari);
  addKind(r, QStringLiteral("灸"), Fee::Kyu, t.kyu, r.kyu);
  addKind(r, QStringLiteral("はり灸"), Fee::HariKyu, t.hariKyu, r.hariKyu);
  addKind(r, QStringLiteral("電療"), Fee::HariElectric, t.electric, r.electric);
  addKind(r, QStringLiteral("マッサージ"), Fee::MassageArea,
          unitsOf(t.digitMassage, t.areaSum, claim.get(QStringLiteral("マッサージ部位数")), t.massageDays),
          r.area);
  addKind(r, QStringLiteral("徒手矯正術"), Fee::Limb,
          unitsOf(t.digitLimb, t.limbSum, claim.get(QStringLiteral("徒手矯正数")), t.limbDays), r.limb);
  addKind(r, QStringLiteral("温罨法"), Fee::Warm, t.warm, r.warm);
  addKind(r, QStringLiteral("電気光線器具"), Fee::WarmLight, t.warmLight, r.warmLight);
}

/// Visits by two bands: the fee of the column 加算往診料4K is the whole fee beyond 4 km, not an add-on.
void addTwoBands(ClaimAmounts& r) {
  addKind(r, QStringLiteral("往療料（4kmまで）"), Fee::Base2K, r.twoBand.nearVisits, r.visit1);
  addKind(r, QStringLiteral("往療料（4km超）"), Fee::Add4K, r.twoBand.farVisits, r.visit2);
}

/// One step of 2 km: what is added to the base fee. `whenDiffering` rules a month of differing distances;
/// kept: there 12 km takes the column of 10 km.
struct Step {
  int km;
  Fee add;
  Fee whenDiffering;
};
constexpr Step kSteps[] = {{4, Fee::Add2K, Fee::Add2K},   {6, Fee::Add4K, Fee::Add4K},
                           {8, Fee::Add6K, Fee::Add6K},   {10, Fee::Add8K, Fee::Add8K},
                           {12, Fee::Add10K, Fee::Add8K}, {14, Fee::Add12K, Fee::Add12K},
                           {16, Fee::Add14K, Fee::Add14K}};

void addStepVisits(ClaimAmounts& r) {
  addKind(r, QStringLiteral("往療料（2kmまで）"), Fee::Base2K, r.steps.total(), r.visit1);
  for (const Step& step : kSteps) {
    const int count = r.steps.count[static_cast<size_t>(step.km / 2 - 1)];
    qint64 amount = 0;
    addKind(r, QStringLiteral("往療料加算（%1km）").arg(step.km),
            r.steps.differing ? step.whenDiffering : step.add, count, amount);
    r.visit2 += amount;
  }
}

}  // namespace

void computeTwoBand(const ClaimRecord& claim, const MonthFlags& flags, ClaimAmounts& result) {
  result.twoBand = tallyTwoBand(claim);
  result.treatmentDays = result.twoBand.treatmentDays;
  addTreatments(claim, result);
  if (result.regime == Regime::Steps) {
    result.steps = tallySteps(claim);
    addStepVisits(result);
  } else {
    addTwoBands(result);
  }
  // The report's fee was put into the column of the 16 km band when the reports began.
  const int reports = flags.isAfter201810 ? reportCount(claim) : 0;
  addKind(result, QStringLiteral("施術報告書交付料"), Fee::Add16K, reports, result.report);
  result.subject = subjectOf(result);
}

}  // namespace claims

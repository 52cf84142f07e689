#include "claims/core/amounts.h"

#include <cmath>

#include "claims/core/share_rate.h"
#include "platform/text/utf16.h"

namespace claims {
namespace {

void tallyInto(ClaimAmounts& result, const ClaimRecord& claim) {
  if (result.regime == Regime::Visits) {
    result.visits = tallyVisits(claim);
    result.treatmentDays = result.visits.treatmentDays;
    return;
  }
  result.twoBand = tallyTwoBand(claim);
  result.treatmentDays = result.twoBand.treatmentDays;
  if (result.regime == Regime::Steps) result.steps = tallySteps(claim);
}

QString labelOf(const AmountItem& item, int number) {
  const QString label = text::utf16(item.label);
  return label.contains(u'%') ? label.arg(number) : label;
}

/// The lines of all items in force, and the rows of those that are charged.
void addLines(ClaimAmounts& result, const ClaimCounts& counts, const FeeEdition& fees, QDate month) {
  for (const AmountItem& item : result.rules->items) {
    AmountLine& line = result.lines.emplace_back();
    if (item.counter == nullptr || !item.from.holdsIn(month)) continue;
    if (item.tick && !counts.claim.ticked(*item.tick)) continue;
    const Counted counted = item.counter(counts);
    if (counted.count == 0) continue;
    const int unit = item.fee.yen(fees, counted.number);
    line = {unit, counted.count, qint64{unit} * counted.count};
    if (!item.charged) continue;
    result.rows.append({labelOf(item, counted.number), line.unit, line.count, line.amount});
    result.total += line.amount;
  }
}

}  // namespace

qint64 shareOf(qint64 total, double rate) {
  if (rate == 0) return 0;
  return static_cast<qint64>(std::floor(static_cast<double>(total) * rate + 0.999));
}

ClaimAmounts amounts(const ClaimRecord& claim, const FeeEdition& fees, const MonthFlags& flags, Path path,
                     EraTable table) {
  ClaimAmounts result;
  result.kind = kindOf(claim.get(claim::treatmentKind));
  result.preview = previewOf(result.kind, flags.month, table);
  result.rate = shareRate(claim.get(claim::shareRate));
  const Era* era = eraOf(flags.month, path, table);
  if (era == nullptr || (era->regime == Regime::Visits && result.kind == Kind::None)) return result;
  result.regime = era->regime;
  result.rules = &era->of(result.kind);
  result.version = result.rules->versionOf(*flags.month);
  result.lines.reserve(static_cast<qsizetype>(result.rules->items.size()));
  tallyInto(result, claim);
  addLines(result, result.counts(claim), fees, *flags.month);
  result.subject = result.rules->subject(result);
  result.share = shareOf(result.total, result.rate);
  result.claim = result.total - result.share;
  return result;
}

text::Result<ClaimAmounts> amounts(const ClaimRecord& claim, const MonthFlags& flags, Path path,
                                   const FeeFiles& files, FeeSource& source, EraTable table) {
  if (!flags.month) return amounts(claim, FeeEdition(), flags, path, table);
  const auto fees = source.load(files.path(*flags.month));
  if (!fees) return fees.fault();
  return amounts(claim, fees.value(), flags, path, table);
}

}  // namespace claims

#include "claims/core/amounts.h"

#include <cmath>

#include "claims/core/amounts_parts.h"

namespace claims {
namespace {

Regime regimeOf(Kind kind, const MonthFlags& flags, Path path) {
  if (!flags.month) return Regime::None;
  if (flags.isAfter202410) return kind == Kind::None ? Regime::None : Regime::Visits;
  return path == Path::Preview && !flags.isAfter201806 ? Regime::Steps : Regime::TwoBand;
}

}  // namespace

qint64 shareOf(qint64 total, double rate) {
  if (rate == 0) return 0;
  return static_cast<qint64>(std::floor(static_cast<double>(total) * rate + 0.999));
}

QString previewScreen(Kind kind, const MonthFlags& flags) {
  if (!flags.month || kind == Kind::None) return {};
  const bool massage = kind == Kind::Massage;
  if (flags.isAfter202410) return massage ? QStringLiteral("施術料金2024A") : QStringLiteral("施術料金2024H");
  if (flags.isAfter201806) return massage ? QStringLiteral("施術料金2108A") : QStringLiteral("施術料金2018H");
  return massage ? QStringLiteral("施術料金2") : QStringLiteral("施術料金1");
}

int reportCount(const ClaimRecord& claim) {
  if (!claim.ticked(QStringLiteral("yn2"))) return 0;
  if (claim.ticked(QStringLiteral("yn4"))) return 3;
  return claim.ticked(QStringLiteral("yn3")) ? 2 : 1;
}

ClaimAmounts amounts(const ClaimRecord& claim, const FeeEdition& fees, const MonthFlags& flags, Path path) {
  ClaimAmounts result;
  result.kind = kindOf(claim.get(QStringLiteral("施術内容")));
  result.regime = regimeOf(result.kind, flags, path);
  result.previewScreen = previewScreen(result.kind, flags);
  result.rate = shareRate(claim.get(QStringLiteral("一部負担金")));
  if (result.regime == Regime::None) return result;
  result.fees = fees;
  if (result.regime == Regime::Visits) {
    computeVisits(claim, result);
  } else {
    computeTwoBand(claim, flags, result);
  }
  for (const AmountRow& row : result.rows) result.total += row.amount;
  result.share = shareOf(result.total, result.rate);
  result.claim = result.total - result.share;
  return result;
}

text::Result<ClaimAmounts> amounts(const ClaimRecord& claim, const MonthFlags& flags, Path path,
                                   const FeeFiles& files, FeeSource& source) {
  if (!flags.month) return amounts(claim, FeeEdition(), flags, path);
  const auto fees = source.load(files.path(*flags.month));
  if (!fees) return fees.fault();
  return amounts(claim, fees.value(), flags, path);
}

}  // namespace claims

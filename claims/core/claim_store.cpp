#include "claims/core/claim_store.h"

#include <algorithm>

#include "claims/core/amount_record.h"
#include "claims/core/insurance.h"
#include "claims/core/share_ticks.h"
#include "platform/store/tables/claims.h"

namespace claims {

using namespace Qt::StringLiterals;
namespace {

constexpr store::Column kCalculated[] = {claim::hariSum,
                                         claim::hariTimes,
                                         claim::kyuSum,
                                         claim::kyuTimes,
                                         claim::hariKyuSum,
                                         claim::hariKyuTimes,
                                         claim::hariElectricSum,
                                         claim::hariElectricTimes,
                                         claim::kyuElectricSum,
                                         claim::kyuElectricTimes,
                                         claim::hariKyuElectricSum,
                                         claim::hariKyuElectricTimes,
                                         claim::massageSum,
                                         claim::massageTimes,
                                         claim::limbSum,
                                         claim::limbTimes,
                                         claim::warmSum,
                                         claim::warmTimes,
                                         claim::warmLightSum,
                                         claim::warmLightTimes,
                                         claim::treatmentDays,
                                         claim::firstFee,
                                         claim::first,
                                         claim::total,
                                         claim::share,
                                         claim::claimed,
                                         claim::visitDistance,
                                         claim::visitTimes,
                                         claim::visitSum1,
                                         claim::visitSum2,
                                         claim::onSummary};

constexpr store::Column kCalculatedSecond[] = {
    claim::hariTotal,    claim::hariShare,      claim::hariClaimed, claim::massageTotal,
    claim::massageShare, claim::massageClaimed, claim::hariRecord,  claim::massageRecord};

/// A claim being stored, noting what the store itself writes.
class Writer {
 public:
  explicit Writer(StoredClaim& stored) : m_stored(stored) {}

  QString get(const store::Column& column) const { return m_stored.claim.get(column); }
  void set(const store::Column& column, const QString& value) {
    m_stored.claim.setNamed(column, value);
    m_stored.written.append(column);
  }
  /// Sets the calculated columns to NULL; fill() puts the values in afterwards.
  void clear(std::span<const store::Column> columns) {
    for (const store::Column& column : columns) set(column, QString());
  }
  void fill(const store::Column& cleared, const QString& value) { m_stored.claim.set(cleared, value); }
  /// A number; 0 leaves the column NULL.
  void fill(const store::Column& cleared, qint64 number) {
    if (number != 0) fill(cleared, QString::number(number));
  }

 private:
  StoredClaim& m_stored;
};

/// 老人 and 退職国保 were replaced by other kinds; a claim whose printed kind says so follows.
void rewriteInsurance(Writer& writer) {
  const QString kind = writer.get(claim::insuranceKind);
  const QString printed = writer.get(claim::printedInsurance);
  if (printed == u"後期高齢" && kind == u"老人") writer.set(claim::insuranceKind, u"後期高齢"_s);
  if (printed == u"国民健保" && kind == u"退職国保") writer.set(claim::insuranceKind, u"国保"_s);
}

void writeDerived(const ClaimRecord& claim, Writer& writer) {
  rewriteInsurance(writer);
  const bool hasTicks =
      std::ranges::any_of(kShareTicks, [&](const ShareTick& tick) { return claim.has(tick.column); });
  if (hasTicks) writer.set(claim::shareTicks, shareTicksText(tickValuesOf(claim)));
  const QString kind = writer.get(claim::insuranceKind);
  writer.set(claim::insuranceOrder, insuranceOrder(kind));
  writer.set(claim::summaryCode, summaryCode(kind, writer.get(claim::relation)));
  writer.set(claim::cardNumber1, writer.get(claim::cardNumber));
}

/// The distance that the claim shows: the one typed for printing, else the one of all its visits.
QString distanceText(const TwoBandTally& tally, Writer& writer) {
  if (const QString actual = writer.get(claim::realDistance); !actual.isEmpty()) return actual;
  return tally.distance.value_or(0) == 0 ? QString() : QString::number(*tally.distance);
}

/// The columns that keep each item.
void writeItems(const ClaimAmounts& a, const ClaimCounts& counts, Writer& writer) {
  for (size_t i = 0; i < a.items().size(); ++i) {
    const AmountColumns& columns = a.items()[i].columns;
    const AmountLine& line = a.lines[static_cast<qsizetype>(i)];
    if (columns.amount) writer.fill(*columns.amount, line.amount);
    if (columns.count)
      writer.fill(*columns.count, columns.counter != nullptr ? columns.counter(counts).count : line.count);
  }
}

void writeTwoBand(const TwoBandTally& tally, Writer& writer) {
  if (tally.first != 0) writer.fill(claim::first, QString(QChar(tally.first)));
  writer.fill(claim::visitDistance, distanceText(tally, writer));
  writer.fill(claim::visitTimes, tally.nearVisits + tally.farVisits);
}

/// 施術科目, blank but never NULL: NULL says that the claim was never stored.
void writeSubject(const QString& subject, Writer& writer) {
  writer.set(claim::subject, subject.isNull() ? QString(QLatin1String("")) : subject);
}

void writeAmounts(const ClaimAmounts& a, const ClaimCounts& counts, const AreaBoxes& boxes, Writer& writer) {
  writeItems(a, counts, writer);
  if (a.regime == Regime::TwoBand) writeTwoBand(a.twoBand, writer);
  writer.fill(claim::treatmentDays, a.treatmentDays);
  writeSubject(a.subject, writer);
  const bool massage = a.kind == Kind::Massage;
  const struct {
    store::Column column, own;
    qint64 yen;
  } sums[] = {{claim::total, massage ? claim::massageTotal : claim::hariTotal, a.total},
              {claim::share, massage ? claim::massageShare : claim::hariShare, a.share},
              {claim::claimed, massage ? claim::massageClaimed : claim::hariClaimed, a.claim}};
  for (const auto& sum : sums) {
    writer.fill(sum.column, sum.yen);
    if (a.kind != Kind::None) writer.fill(sum.own, sum.yen);
  }
  if (a.version != nullptr) writer.fill(recordColumn(a.kind), amountRecord(a, boxes));
}

AreaBoxes boxesFor(const ClaimRecord& claim, const std::optional<AreaBoxes>& given) {
  if (given) return *given;
  const AreaBoxes stored = storedAreaBoxes(claim);
  return stored == AreaBoxes() ? areaBoxes(claim) : stored;
}

template <size_t Count>
void writeBoxes(const std::array<QString, Count>& boxes, const store::Series& columns, Writer& writer) {
  for (size_t i = 0; i < Count; ++i) writer.set(columns[columns.first() + int(i)], boxes[i]);
}

}  // namespace

StoredClaim storeClaim(const ClaimRecord& claim, const StoreContext& context,
                       const std::optional<AreaBoxes>& given) {
  StoredClaim stored;
  stored.claim = claim;
  Writer writer(stored);
  // Never NULL, so that the claim has its place in the order of the lists.
  if (claim.blank(claim::insuredKana)) writer.set(claim::insuredKana, u" "_s);
  const AreaBoxes boxes = boxesFor(claim, given);
  const MonthFlags flags = monthFlags(claim.get(claim::month), context.era);
  if (flags.month) {
    writer.clear(kCalculated);
    writer.clear(kCalculatedSecond);
    const auto computed = amounts(claim, flags, Path::Store, context.files, context.fees, context.eraTable);
    if (computed) {
      stored.amounts = computed.value();
      writeAmounts(stored.amounts, stored.amounts.counts(claim), boxes, writer);
    } else {
      stored.calculation = computed.fault();
      writeSubject(writer.get(claim::subject), writer);
    }
  }
  writeDerived(claim, writer);
  writeBoxes(boxes.areas, claim::areaDays, writer);
  writeBoxes(boxes.limbs, claim::limbDays, writer);
  return stored;
}

std::span<const store::Column> calculatedColumns() { return kCalculated; }
std::span<const store::Column> calculatedColumnsSecond() { return kCalculatedSecond; }

}  // namespace claims

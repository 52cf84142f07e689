#include "claims/core/claim_store.h"

#include <algorithm>

#include "claims/core/amount_record.h"
#include "claims/core/share_ticks.h"

namespace claims {
namespace {

constexpr const char16_t* kCalculated[] = {u"はり合計金額",
                                           u"はり合計回数",
                                           u"灸合計金額",
                                           u"灸合計回数",
                                           u"はり灸合計金額",
                                           u"はり灸合計回数",
                                           u"はり電療合計金額",
                                           u"はり電療合計回数",
                                           u"灸電療合計金額",
                                           u"灸電療合計回数",
                                           u"はり灸電療合計金額",
                                           u"はり灸電療合計回数",
                                           u"マッサージ局所合計金額",
                                           u"マッサージ局所合計回数",
                                           u"徒手矯正術合計金額",
                                           u"徒手矯正術合計回数",
                                           u"温罨法合計金額",
                                           u"温罨法合計回数",
                                           u"電気光線器具併用合計金額",
                                           u"電気光線器具併用合計回数",
                                           u"治療日数",
                                           u"初回費用",
                                           u"初回",
                                           u"合計",
                                           u"一部負担金2",
                                           u"請求額",
                                           u"往療距離",
                                           u"往療回数",
                                           u"往療金額1",
                                           u"往療金額2",
                                           u"総括表"};

constexpr const char16_t* kCalculatedSecond[] = {u"h2", u"h3", u"h4", u"m2", u"m3", u"m4", u"h1", u"m1"};

/// A claim being stored, noting what the store itself writes.
class Writer {
 public:
  explicit Writer(StoredClaim& stored) : m_stored(stored) {}

  QString get(const char16_t* column) const { return m_stored.claim.get(columnName(column)); }
  void set(const char16_t* column, const QString& value) {
    const QString name = columnName(column);
    m_stored.claim.set(name, value);
    m_stored.written.append(name);
  }
  /// Sets the calculated columns to NULL; what has a value is filled in behind it.
  void clear(std::span<const char16_t* const> columns) {
    for (const char16_t* column : columns) set(column, QString());
  }
  void fill(const char16_t* cleared, const QString& value) { m_stored.claim.set(columnName(cleared), value); }
  /// A number; 0 leaves the column NULL.
  void fill(const char16_t* cleared, qint64 number) {
    if (number != 0) fill(cleared, QString::number(number));
  }

 private:
  StoredClaim& m_stored;
};

/// 老人 and 退職国保 were replaced by other kinds; a claim whose printed kind says so follows.
void rewriteInsurance(Writer& writer) {
  const QString kind = writer.get(u"保険の種類"), printed = writer.get(u"保険の種類3");
  if (printed == u"後期高齢" && kind == u"老人") writer.set(u"保険の種類", QStringLiteral("後期高齢"));
  if (printed == u"国民健保" && kind == u"退職国保") writer.set(u"保険の種類", QStringLiteral("国保"));
}

void writeDerived(const ClaimRecord& claim, Writer& writer) {
  rewriteInsurance(writer);
  const bool hasTicks = std::ranges::any_of(
      kShareTicks, [&](const ShareTick& tick) { return claim.has(columnName(tick.column)); });
  if (hasTicks) writer.set(u"負担割合", shareTicksText(tickValuesOf(claim)));
  const QString kind = writer.get(u"保険の種類");
  writer.set(u"保険順位", insuranceOrder(kind));
  writer.set(kSummaryCodeColumn, summaryCode(kind, writer.get(u"被保険者との続柄")));
  writer.set(u"保険証番号1", writer.get(u"保険証番号"));
}

/// The distance that the claim shows: the one typed for printing, else the one of all its visits.
QString distanceText(const TwoBandTally& tally, Writer& writer) {
  if (const QString actual = writer.get(u"実際の距離"); !actual.isEmpty()) return actual;
  return tally.distance.value_or(0) == 0 ? QString() : QString::number(*tally.distance);
}

/// The columns that keep each item.
void writeItems(const ClaimAmounts& a, const ClaimCounts& counts, Writer& writer) {
  for (size_t i = 0; i < a.items().size(); ++i) {
    const AmountColumns& columns = a.items()[i].columns;
    const AmountLine& line = a.lines[static_cast<qsizetype>(i)];
    if (columns.amount != nullptr) writer.fill(columns.amount, line.amount);
    if (columns.count != nullptr)
      writer.fill(columns.count, columns.counter != nullptr ? columns.counter(counts).count : line.count);
  }
}

void writeTwoBand(const TwoBandTally& tally, Writer& writer) {
  if (tally.first != 0) writer.fill(u"初回", QString(QChar(tally.first)));
  writer.fill(u"往療距離", distanceText(tally, writer));
  writer.fill(u"往療回数", tally.nearVisits + tally.farVisits);
}

/// 施術科目, blank but never NULL: NULL says that the claim was never stored.
void writeSubject(const QString& subject, Writer& writer) {
  writer.set(u"施術科目", subject.isNull() ? QString(QLatin1String("")) : subject);
}

void writeAmounts(const ClaimAmounts& a, const ClaimCounts& counts, const AreaBoxes& boxes, Writer& writer) {
  writeItems(a, counts, writer);
  if (a.regime == Regime::TwoBand) writeTwoBand(a.twoBand, writer);
  writer.fill(u"治療日数", a.treatmentDays);
  writeSubject(a.subject, writer);
  const bool massage = a.kind == Kind::Massage;
  const struct {
    const char16_t *column, *own;
    qint64 yen;
  } sums[] = {{u"合計", massage ? u"m2" : u"h2", a.total},
              {u"一部負担金2", massage ? u"m3" : u"h3", a.share},
              {u"請求額", massage ? u"m4" : u"h4", a.claim}};
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

void writeBoxes(const AreaBoxes& boxes, Writer& writer) {
  for (size_t i = 0; i < boxes.areas.size(); ++i) writer.set(kAreaBoxColumns[i], boxes.areas[i]);
  for (size_t i = 0; i < boxes.limbs.size(); ++i) writer.set(kLimbBoxColumns[i], boxes.limbs[i]);
}

}  // namespace

StoredClaim storeClaim(const ClaimRecord& claim, const StoreContext& context,
                       const std::optional<AreaBoxes>& given) {
  StoredClaim stored;
  stored.claim = claim;
  Writer writer(stored);
  // Never NULL, so that the list's order has no gap.
  if (claim.blank(QStringLiteral("被保険者のフリガナ")))
    writer.set(u"被保険者のフリガナ", QStringLiteral(" "));
  const AreaBoxes boxes = boxesFor(claim, given);
  const MonthFlags flags = monthFlags(claim.get(QStringLiteral("申請年月")), context.era);
  if (flags.month) {
    writer.clear(kCalculated);
    writer.clear(kCalculatedSecond);
    const auto computed = amounts(claim, flags, Path::Store, context.files, context.fees, context.eraTable);
    if (computed) {
      stored.amounts = computed.value();
      writeAmounts(stored.amounts, stored.amounts.counts(claim), boxes, writer);
    } else {
      stored.calculation = computed.fault();
      writeSubject(writer.get(u"施術科目"), writer);
    }
  }
  writeDerived(claim, writer);
  writeBoxes(boxes, writer);
  return stored;
}

std::span<const char16_t* const> calculatedColumns() { return kCalculated; }
std::span<const char16_t* const> calculatedColumnsSecond() { return kCalculatedSecond; }

}  // namespace claims

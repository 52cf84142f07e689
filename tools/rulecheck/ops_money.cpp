// Fee files, fees, amounts.
#include "claims/core/amounts.h"
#include "claims/core/claim_store.h"
#include "tools/rulecheck/claim_json.h"
#include "tools/rulecheck/ops.h"

namespace rulecheck {
namespace {

claims::StoredFees& storedFees() {
  static claims::StoredFees fees;
  return fees;
}

claims::FeeFiles feeFilesOf(const Context& context) {
  return {context.programFolder, context.programFolder + QStringLiteral("/料金設定2000.mdb")};
}

/// The file of the request's month and set; null where the month cannot be read.
QString fileOfMonth(const QJsonObject& request) {
  const auto month = eraDates().claimMonthToDate(request["month"].toString());
  if (!month) return {};
  const bool osaka = request["set"].toString() == u"osaka";
  return claims::pickFeeFile(*month, osaka ? claims::FeeSet::Osaka : claims::FeeSet::National);
}

QJsonObject rowOf(const claims::FeeEdition& edition) {
  QJsonObject row{{"ID", edition.id}};
  for (const claims::FeeRow& fee : claims::kFees) {
    const auto value = edition.value(fee.fee);
    row[claims::feeColumn(fee.fee)] = value ? QJsonValue(*value) : QJsonValue();
  }
  return row;
}

QJsonArray rowsOf(const claims::ClaimAmounts& amounts) {
  QJsonArray rows;
  for (const claims::AmountRow& row : amounts.rows)
    rows.append(
        QJsonObject{{"label", row.label}, {"unit", row.unit}, {"count", row.count}, {"amount", row.amount}});
  return rows;
}

QJsonObject replyOf(const claims::ClaimAmounts& amounts, const QJsonObject& columns) {
  return {{"rows", rowsOf(amounts)}, {"columns", columns},
          {"合計", amounts.total},   {"一部負担金2", amounts.share},
          {"請求額", amounts.claim}, {"preview", jsonOf(claims::previewScreen(amounts.preview))}};
}

QJsonObject previewReply(const claims::ClaimRecord& claim, Context& context) {
  const auto flags = claims::monthFlags(claim.get(claim::month), eraDates());
  const auto computed =
      claims::amounts(claim, flags, claims::Path::Preview, feeFilesOf(context), storedFees());
  return computed ? replyOf(computed.value(), {}) : error(computed.fault().message);
}

QJsonObject storeReply(const claims::ClaimRecord& claim, Context& context) {
  const claims::FeeFiles files = feeFilesOf(context);
  const auto stored = claims::storeClaim(claim, {eraDates(), files, storedFees()});
  if (stored.calculation) return error(stored.calculation->message);
  QJsonObject columns;
  for (const QString& column : stored.written) columns[column] = jsonOf(stored.claim.named(column));
  return replyOf(stored.amounts, columns);
}

}  // namespace

QJsonObject feeFile(const QJsonObject& request, Context&) {
  const QString file = fileOfMonth(request);
  return file.isNull() ? error(QStringLiteral("month: not an era month")) : QJsonObject{{"file", file}};
}

QJsonObject fees(const QJsonObject& request, Context& context) {
  const QString named = request["file"].toString();
  const QString file = named.isEmpty() ? fileOfMonth(request) : named;
  if (file.isNull()) return error(QStringLiteral("month: not an era month"));
  const auto edition = storedFees().load(context.programFolder + u'/' + file);
  if (!edition) return error(edition.fault().message);
  return {{"file", file}, {"row", rowOf(edition.value())}};
}

QJsonObject amounts(const QJsonObject& request, Context& context) {
  const QString path = request["path"].toString(QStringLiteral("store"));
  if (path == u"store") return storeReply(claimOf(request), context);
  if (path == u"preview") return previewReply(claimOf(request), context);
  return error(QStringLiteral("path: store or preview"));
}

}  // namespace rulecheck

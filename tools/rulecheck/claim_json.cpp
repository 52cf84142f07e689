#include "tools/rulecheck/claim_json.h"

namespace rulecheck {
namespace {

QString textOf(const QJsonValue& value) {
  if (value.isBool()) return value.toBool() ? QStringLiteral("-1") : QStringLiteral("0");
  if (value.isDouble()) return value.toVariant().toString();
  return value.isString() ? value.toString() : QString();
}

}  // namespace

claims::ClaimRecord claimOf(const QJsonObject& request) {
  claims::ClaimRecord claim;
  const QJsonObject columns = request["claim"].toObject();
  for (auto it = columns.begin(); it != columns.end(); ++it) claim.setNamed(it.key(), textOf(it.value()));
  return claim;
}

QJsonValue jsonOf(const QString& value) { return value.isNull() ? QJsonValue() : QJsonValue(value); }

QJsonArray jsonOf(const QStringList& texts) { return QJsonArray::fromStringList(texts); }

const frame::EraDates& eraDates() {
  static const text::SystemClock clock;
  static const frame::EraDates era(frame::EraCapability::Supported, clock);
  return era;
}

}  // namespace rulecheck

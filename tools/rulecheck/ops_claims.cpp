// Months, entry and full checks, trimming.
#include "claims/core/area_boxes.h"
#include "claims/core/carry_forward.h"
#include "claims/core/checks.h"
#include "claims/core/day_codes.h"
#include "claims/core/rule_dates.h"
#include "claims/core/trim.h"
#include "tools/rulecheck/claim_json.h"
#include "tools/rulecheck/ops.h"

namespace rulecheck {

QJsonObject nextMonth(const QJsonObject& request, Context&) {
  const auto next = claims::nextMonth(request["month"].toString());
  if (!next) return error(QStringLiteral("month: not an era month"));
  return {{"month", next->month}, {"申請月", next->number}};
}

QJsonObject boxes(const QJsonObject& request, Context&) {
  const claims::AreaBoxes counted = claims::areaBoxes(claimOf(request));
  const auto list = [](const auto& texts) {
    QJsonArray array;
    for (const QString& text : texts) array.append(text.isNull() ? QString(QLatin1String("")) : text);
    return array;
  };
  return {{"Text31", list(counted.areas)}, {"Text41", list(counted.limbs)}};
}

QJsonObject check(const QJsonObject& request, Context&) {
  const claims::ClaimRecord claim = claimOf(request);
  const QString list = request["list"].toString(QStringLiteral("full"));
  if (list != u"full" && list != u"fast") return error(QStringLiteral("list: full or fast"));
  QStringList open;
  for (const QJsonValue& name : request["openWindows"].toArray()) open.append(name.toString());
  const claims::CheckResult result = list == u"full" ? claims::checkClaimFull(claim, eraDates())
                                                     : claims::checkClaimFast(claim, eraDates(), open);
  return {{"stop", result.stop}, {"messages", jsonOf(result.messages)}};
}

QJsonObject entry(const QJsonObject& request, Context&) {
  const claims::ClaimRecord claim = claimOf(request);
  const QString text = request["text"].toString();
  const QString cell = request["cell"].toString();
  QString message;
  if (cell == u"code") {
    message = claims::codeEntryMessage(text, claims::kindOf(claim.get(claim::treatmentKind)));
  } else if (cell == u"visit") {
    const auto flags = claims::monthFlags(claim.get(claim::month), eraDates());
    message = claims::visitEntryMessage(text, flags.isAfter202410);
  } else {
    return error(QStringLiteral("cell: code or visit"));
  }
  return {{"ok", message.isNull()}, {"message", message.isNull() ? QString(QLatin1String("")) : message}};
}

QJsonObject trim(const QJsonObject& request, Context&) {
  const QString form = request["form"].toString(QStringLiteral("claim"));
  if (form != u"claim" && form != u"record") return error(QStringLiteral("form: claim or record"));
  const auto result = claims::trimForPrint(
      claimOf(request), form == u"claim" ? claims::TrimForm::Claim : claims::TrimForm::TreatmentRecord);
  // Ticks and numbers go back as they came; only what was cut is another text.
  QJsonObject claim = request["claim"].toObject();
  for (const QString& column : result.cut) claim[column] = result.claim.named(column);
  return {{"claim", claim}, {"cut", jsonOf(result.cut)}};
}

}  // namespace rulecheck

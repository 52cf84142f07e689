#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include "claims/core/claim_record.h"
#include "frame/core/era_date.h"

namespace rulecheck {

/// The claim of a request: its object "claim", one flat object of columns. A tick may be true/false, "1"/"0"
/// or -1/0; a null column is NULL.
claims::ClaimRecord claimOf(const QJsonObject& request);
/// A column's value: a text, or null where it is NULL.
QJsonValue jsonOf(const QString& value);
QJsonArray jsonOf(const QStringList& texts);
/// Era operations of a platform that knows all eras, with the system's clock.
const frame::EraDates& eraDates();

}  // namespace rulecheck

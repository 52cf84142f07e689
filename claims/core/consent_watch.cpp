#include "claims/core/consent_watch.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <optional>

#include "claims/core/kinds.h"
#include "platform/store/connection.h"
#include "platform/store/sources.h"
#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"

namespace claims {

using namespace Qt::StringLiterals;
namespace {

/// Whose consent it is, and for what.
using Consent = std::pair<QString, bool>;

Consent consentOf(const store::Cursor& claim) {
  const QString treatment = claim.value(claim::treatmentKind);
  return {claim.value(claim::name), kindOf(treatment) == Kind::Massage};
}

/// The ends of all claims: by their ID those within the days, and the latest of those after them.
struct Ends {
  QHash<QString, QDate> within;
  QHash<Consent, QDate> later;
};

text::Result<Ends> endsOf(store::Cursor& claims, QDate from, QDate to, const frame::EraDates& dates) {
  Ends ends;
  for (;;) {
    const text::Result<bool> row = claims.next();
    if (!row) return row.fault();
    if (!*row) return ends;
    const QString text = claims.value(claim::consentUntil);
    if (text.trimmed().isEmpty()) continue;
    const std::optional<QDate> end = dates.anyDate(text);
    if (!end || *end < from) continue;
    if (*end <= to)
      ends.within.insert(claims.value(claim::id), *end);
    else if (QDate& latest = ends.later[consentOf(claims)]; !latest.isValid() || *end > latest)
      latest = *end;
  }
}

/// Of each name the first claim with an end within the days.
text::Result<QList<ConsentEnd>> rowsOf(store::Cursor& claims, const Ends& ends) {
  QList<ConsentEnd> rows;
  QSet<QString> listed;
  for (;;) {
    const text::Result<bool> row = claims.next();
    if (!row) return row.fault();
    if (!*row) return rows;
    const auto end = ends.within.constFind(claims.value(claim::id));
    if (end == ends.within.cend()) continue;
    const QString name = claims.value(claim::name);
    if (listed.contains(name)) continue;
    listed.insert(name);
    rows.append({name, claims.value(claim::insuranceKind), *end, claims.value(claim::treatmentKind),
                 ends.later.value(consentOf(claims))});
  }
}

}  // namespace

QString consentEndText(QDate end) {
  return u"%1年%2月%3日"_s.arg(end.year()).arg(end.month()).arg(end.day());
}

text::Result<QList<ConsentEnd>> consentsRunningOut(const QString& claimsPath, const frame::EraDates& dates) {
  store::Connection connection;
  if (const text::Done opened = connection.open(store::connectionString(claimsPath)); !opened)
    return opened.fault();
  auto byConsent = store::Cursor::open(connection, text::utf16(store::source::kClaimsByConsent));
  if (!byConsent) return byConsent.fault();
  auto newestFirst = store::Cursor::open(connection, text::utf16(store::source::kClaimsNewestFirst));
  if (!newestFirst) return newestFirst.fault();

  const QDate today = dates.clock().today();
  const text::Result<Ends> ends = endsOf(*byConsent, today, today.addMonths(1), dates);
  if (!ends) return ends.fault();
  text::Result<QList<ConsentEnd>> rows = rowsOf(*newestFirst, *ends);
  if (rows) std::ranges::stable_sort(*rows, {}, &ConsentEnd::end);
  return rows;
}

}  // namespace claims

#include "claims/core/consent_watch.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <optional>

#include "claims/core/kinds.h"
#include "platform/store/connection.h"
#include "platform/store/sources.h"

namespace claims {
namespace {

/// Whose consent it is, and for what.
using Consent = std::pair<QString, bool>;

Consent consentOf(const store::Cursor& claim) {
  const QString treatment = claim.value(QStringLiteral("施術内容"));
  return {claim.value(QStringLiteral("氏名")), kindOf(treatment) == Kind::Massage};
}

/// The ends that all claims tell: by their ID those within the days, and the latest behind them.
struct Ends {
  QHash<QString, QDate> within;
  QHash<Consent, QDate> behind;
};

text::Result<Ends> endsOf(store::Cursor& claims, QDate from, QDate to, const frame::EraDates& dates) {
  Ends ends;
  for (;;) {
    const text::Result<bool> row = claims.next();
    if (!row) return row.fault();
    if (!*row) return ends;
    const QString text = claims.value(QStringLiteral("要加療期間2"));
    if (text.trimmed().isEmpty()) continue;
    const std::optional<QDate> end = dates.anyDate(text);
    if (!end || *end < from) continue;
    if (*end <= to)
      ends.within.insert(claims.value(QStringLiteral("ID")), *end);
    else if (QDate& latest = ends.behind[consentOf(claims)]; !latest.isValid() || *end > latest)
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
    const auto end = ends.within.constFind(claims.value(QStringLiteral("ID")));
    if (end == ends.within.cend()) continue;
    const QString name = claims.value(QStringLiteral("氏名"));
    if (listed.contains(name)) continue;
    listed.insert(name);
    rows.append({name, claims.value(QStringLiteral("保険の種類")), *end,
                 claims.value(QStringLiteral("施術内容")), ends.behind.value(consentOf(claims))});
  }
}

}  // namespace

QString consentEndText(QDate end) {
  return QStringLiteral("%1年%2月%3日").arg(end.year()).arg(end.month()).arg(end.day());
}

text::Result<QList<ConsentEnd>> consentsRunningOut(const QString& claimsPath, const frame::EraDates& dates) {
  store::Connection connection;
  if (const text::Done opened = connection.open(store::connectionString(claimsPath)); !opened)
    return opened.fault();
  auto byConsent = store::Cursor::open(connection, QString::fromUtf16(store::source::kClaimsByConsent));
  if (!byConsent) return byConsent.fault();
  auto newestFirst = store::Cursor::open(connection, QString::fromUtf16(store::source::kClaimsNewestFirst));
  if (!newestFirst) return newestFirst.fault();

  const QDate today = dates.clock().today();
  const text::Result<Ends> ends = endsOf(*byConsent, today, today.addMonths(1), dates);
  if (!ends) return ends.fault();
  text::Result<QList<ConsentEnd>> rows = rowsOf(*newestFirst, *ends);
  if (rows) std::ranges::stable_sort(*rows, {}, &ConsentEnd::end);
  return rows;
}

}  // namespace claims

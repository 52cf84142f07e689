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

/// Latest end of each consent, of those that end within the days.
QHash<Consent, QDate> endsWithin(store::Cursor& claims, QDate from, QDate to, const frame::EraDates& dates) {
  QHash<Consent, QDate> latest;
  for (; !claims.eof(); claims.moveNext()) {
    const QString text = claims.value(QStringLiteral("要加療期間2"));
    if (text.trimmed().isEmpty()) continue;
    const std::optional<QDate> end = dates.anyDate(text);
    if (!end || *end < from) continue;
    QDate& known = latest[consentOf(claims)];
    if (!known.isValid() || *end > known) known = *end;
  }
  erase_if(latest, [to](const auto& consent) { return consent.value() > to; });
  return latest;
}

/// The newest claim of each consent with its end, as rows in the order of the claims.
QList<ConsentEnd> rowsOf(store::Cursor& claims, QHash<Consent, QDate> ends, const frame::EraDates& dates) {
  QList<ConsentEnd> rows;
  for (; !claims.eof() && !ends.isEmpty(); claims.moveNext()) {
    const auto known = ends.find(consentOf(claims));
    if (known == ends.end()) continue;
    if (dates.anyDate(claims.value(QStringLiteral("要加療期間2"))) != known.value()) continue;
    rows.append({claims.value(QStringLiteral("氏名")), claims.value(QStringLiteral("保険の種類")),
                 known.value(), claims.value(QStringLiteral("施術内容"))});
    ends.erase(known);
  }
  return rows;
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
  QList<ConsentEnd> rows =
      rowsOf(*newestFirst, endsWithin(*byConsent, today, today.addMonths(1), dates), dates);
  std::ranges::stable_sort(rows, {}, &ConsentEnd::end);
  QSet<QString> told;
  rows.removeIf([&told](const ConsentEnd& row) {
    const bool again = told.contains(row.name);
    told.insert(row.name);
    return again;
  });
  return rows;
}

}  // namespace claims

#pragma once

#include <QString>
#include <QStringList>
#include <span>

#include "claims/core/claim_record.h"
#include "frame/core/era_date.h"

namespace claims {

/// Outcome of a check: the messages in the order in which they are shown. Where `stop` is set the last one
/// is the failure; all others are warnings, after which the check went on.
struct CheckResult {
  bool stop = false;
  QStringList messages;
};

/// checkClaimFull: before 登録 and the print buttons.
CheckResult checkClaimFull(const ClaimRecord& claim, const frame::EraDates& era);
/// checkClaimFast: before moving, closing, carrying forward, printing the record and 施術料金計算.
/// `openWindows`: names of the screens that are open.
CheckResult checkClaimFast(const ClaimRecord& claim, const frame::EraDates& era,
                           const QStringList& openWindows);

/// A window of the claim form of which only one may be open, and what is said while it is.
struct SingleWindow {
  const char16_t* screen;  ///< the name of its route
  const char16_t* message;
  bool stopsFastCheck;
};
/// 施術報告書, 往療内訳表, the reason sheets, 施術報告書コピー.
std::span<const SingleWindow> singleWindows();
/// Message of the first open window that stops navigation and printing; null: none is open. The copy
/// window stops only where `withCopy` is set.
QString openWindowMessage(const QStringList& openWindows, bool withCopy = true);

/// On leaving 保険者番号: the message about a leading 39 of 後期高齢, else null.
QString insurerNumberMessage(const QString& printedInsurance, const QString& number);
/// Both boxes 同意を受けた者 cleared.
inline constexpr char16_t kConsentTicksMessage[] = u"「同意を受けた者」のチェックが両方共外れています。";
/// On ticking 施術報告書交付.
inline constexpr char16_t kReportTickMessage[] =
    u"「施術報告書交付発行」にチェックを入れた場合、必ず、下の「施術報告交付発行年月日」および、"
    u"初回以外は「前回の施術報告交付発行年月」に日付を記入してください。";

}  // namespace claims

#include "claims/core/carry_forward.h"

#include "claims/core/print_settings.h"
#include "platform/store/tables/claims.h"
#include "platform/text/number.h"

namespace claims {
namespace {

template <class Column>
void copy(const ClaimRecord& from, ClaimRecord& to, const Column& column) {
  if (from.has(column)) to.set(column, from.get(column));
}

}  // namespace

QString carryForwardRefusal(const ClaimRecord& claim) {
  if (claim.blank(claim::requestCount)) return QStringLiteral("申請回数が空欄です。記入してください。");
  if (claim.blank(claim::month)) return QStringLiteral("申請年月が空欄です。記入してください。");
  return {};
}

ClaimRecord carryForward(const ClaimRecord& claim) {
  ClaimRecord next;
  for (const store::Column& column : carriedColumns()) copy(claim, next, column);
  for (const PrintSetting& setting : kPrintSettings) copy(claim, next, setting.column);
  // 社保 and 政管健保 were taken over by 全国健康保険協会 in 2008; old claims pass on the new name.
  if (claim.get(claim::insuranceKind) == u"社保")
    next.set(claim::insuranceKind, QStringLiteral("全国健康保険協会"));
  if (claim.get(claim::printedInsurance) == u"政管健保")
    next.set(claim::printedInsurance, QStringLiteral("全国健康保険協会"));
  next.set(claim::requestKind, QStringLiteral("継続"));
  next.set(claim::workRelated, QStringLiteral("その他"));
  next.set(claim::thirdParty, QStringLiteral("いいえ"));
  next.set(claim::hospitalised, QStringLiteral("入院外"));
  if (const auto month = nextMonth(claim.get(claim::month))) {
    next.set(claim::month, month->month);
    next.set(claim::monthNumber, month->number);
  }
  next.set(claim::requestCount, QString::number(text::intOf(claim.get(claim::requestCount)) + 1));
  return next;
}

QString clinicBoxText(const QString& clinicName) { return QStringLiteral("施術所（") + clinicName + u'）'; }

QStringList secondCarryMessages() {
  return {QStringLiteral("連続した「翌月への継続」は行えません。"),
          QStringLiteral("「閉じる」でレセプト一覧へ戻り、レセプト一覧の「更新」を押して、改めて選択して、"),
          QStringLiteral("レセプトデータへ戻って下さい。")};
}

QStringList carryQuestion() {
  return {QStringLiteral("この患者の新しいレセプトを追加しますか？"),
          QStringLiteral("追加されるデータは閉じるボタンを押してもレセプト一覧表には最初表示されません。"),
          QStringLiteral("表示させるにはレセプト一覧表の画面での「更新」ボタンを押して下さい。")};
}

}  // namespace claims

#include "claims/core/carry_forward.h"

#include "claims/core/print_settings.h"
#include "platform/store/tables/claims.h"
#include "platform/text/number.h"

namespace claims {

using namespace Qt::StringLiterals;
namespace {

template <class Column>
void copy(const ClaimRecord& from, ClaimRecord& to, const Column& column) {
  if (from.has(column)) to.set(column, from.get(column));
}

}  // namespace

QString carryForwardRefusal(const ClaimRecord& claim) {
  if (claim.blank(claim::requestCount)) return u"申請回数が空欄です。記入してください。"_s;
  if (claim.blank(claim::month)) return u"申請年月が空欄です。記入してください。"_s;
  return {};
}

ClaimRecord carryForward(const ClaimRecord& claim) {
  ClaimRecord next;
  for (const store::Column& column : carriedColumns()) copy(claim, next, column);
  for (const PrintSetting& setting : kPrintSettings) copy(claim, next, setting.column);
  // 社保 and 政管健保 were taken over by 全国健康保険協会 in 2008; old claims pass on the new name.
  if (claim.get(claim::insuranceKind) == u"社保") next.set(claim::insuranceKind, u"全国健康保険協会"_s);
  if (claim.get(claim::printedInsurance) == u"政管健保")
    next.set(claim::printedInsurance, u"全国健康保険協会"_s);
  next.set(claim::requestKind, u"継続"_s);
  next.set(claim::workRelated, u"その他"_s);
  next.set(claim::thirdParty, u"いいえ"_s);
  next.set(claim::hospitalised, u"入院外"_s);
  if (const auto month = nextMonth(claim.get(claim::month))) {
    next.set(claim::month, month->month);
    next.set(claim::monthNumber, month->number);
  }
  next.set(claim::requestCount, QString::number(text::intOf(claim.get(claim::requestCount)) + 1));
  return next;
}

QString clinicBoxText(const QString& clinicName) { return u"施術所（"_s + clinicName + u'）'; }

QStringList secondCarryMessages() {
  return {u"連続した「翌月への継続」は行えません。"_s,
          u"「閉じる」でレセプト一覧へ戻り、レセプト一覧の「更新」を押して、改めて選択して、"_s,
          u"レセプトデータへ戻って下さい。"_s};
}

QStringList carryQuestion() {
  return {u"この患者の新しいレセプトを追加しますか？"_s,
          u"追加されるデータは閉じるボタンを押してもレセプト一覧表には最初表示されません。"_s,
          u"表示させるにはレセプト一覧表の画面での「更新」ボタンを押して下さい。"_s};
}

}  // namespace claims

#include "claims/core/carry_forward.h"

#include "claims/core/print_settings.h"
#include "platform/text/number.h"

namespace claims {
namespace {

void copy(const ClaimRecord& from, ClaimRecord& to, const char16_t* name) {
  const QString column = columnName(name);
  if (from.has(column)) to.set(column, from.get(column));
}

}  // namespace

QString carryForwardRefusal(const ClaimRecord& claim) {
  if (claim.blank(QStringLiteral("請求回数")))
    return QStringLiteral("申請回数が空欄です。記入してください。");
  if (claim.blank(QStringLiteral("申請年月")))
    return QStringLiteral("申請年月が空欄です。記入してください。");
  return {};
}

ClaimRecord carryForward(const ClaimRecord& claim) {
  ClaimRecord next;
  for (const char16_t* name : carriedColumns()) copy(claim, next, name);
  for (const PrintSetting& setting : kPrintSettings) copy(claim, next, setting.column);
  // 社保 and 政管健保 were taken over by 全国健康保険協会 in 2008; old claims pass on the new name.
  if (claim.get(QStringLiteral("保険の種類")) == u"社保")
    next.set(QStringLiteral("保険の種類"), QStringLiteral("全国健康保険協会"));
  if (claim.get(QStringLiteral("保険の種類3")) == u"政管健保")
    next.set(QStringLiteral("保険の種類3"), QStringLiteral("全国健康保険協会"));
  next.set(QStringLiteral("請求区分"), QStringLiteral("継続"));
  next.set(QStringLiteral("業務上外のもの"), QStringLiteral("その他"));
  next.set(QStringLiteral("第三者行為によるもの"), QStringLiteral("いいえ"));
  next.set(QStringLiteral("入院入院外の別"), QStringLiteral("入院外"));
  if (const auto month = nextMonth(claim.get(QStringLiteral("申請年月")))) {
    next.set(QStringLiteral("申請年月"), month->month);
    next.set(QStringLiteral("申請月"), month->number);
  }
  next.set(QStringLiteral("請求回数"),
           QString::number(text::intOf(claim.get(QStringLiteral("請求回数"))) + 1));
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

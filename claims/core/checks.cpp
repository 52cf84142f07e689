#include "claims/core/checks.h"

#include "claims/core/check_grid.h"
#include "claims/core/rule_dates.h"
#include "platform/store/tables/claims.h"
#include "platform/text/utf16.h"

namespace claims {

using namespace Qt::StringLiterals;

using text::utf16;

namespace {

constexpr char16_t kPreviousReportWrong[] = u"前回の施術報告書交付年月が正しく入力されていません。";

/// A date field: what is said where it is blank (nullptr: blank passes) and where it is no date.
struct DateRow {
  store::Column column;
  const char16_t* blank;
  const char16_t* wrong;
};
constexpr DateRow kDates[] = {
    {claim::month, u"申請年月が入力されていません。", u"申請年月が正しく入力されていません。"},
    {claim::firstTreatment, u"初療年月日が入力されていません。", u"初療年月日が正しく入力されていません。"},
    {claim::insuredBirth, nullptr, u"被保険者の生年月日が正しく入力されていません。"},
    {claim::validUntil, nullptr, u"有効期限が正しく入力されていません。"},
    {claim::qualifiedFrom, nullptr, u"資格取得日が正しく入力されていません。"},
    {claim::requestDate, nullptr, u"請求年月日が正しく入力されていません。"},
    {claim::receiptDate, nullptr, u"領収年月日が正しく入力されていません。"},
    {claim::treatedBirth, nullptr, u"療養を受ける者の生年月日が正しく入力されていません。"},
    {claim::consentDateKept, nullptr, u"同意年月日が正しく入力されていません。"},
    {claim::consentDate, nullptr, u"実際にレセプトへ記入する同意の年月日が正しく入力されていません。"},
    {claim::consentFrom, nullptr, u"要加療期間(自)が正しく入力されていません。"},
    {claim::consentUntil, nullptr, u"要加療期間(至)が正しく入力されていません。"},
};

QString blankMessage(const ClaimRecord& claim, const store::Column& column, const char16_t* message) {
  return claim.blank(column) ? utf16(message) : QString();
}

QString dateMessage(const ClaimRecord& claim, const DateRow& row, const frame::EraDates& era) {
  const QString value = claim.get(row.column);
  if (value.isEmpty()) return utf16(row.blank);
  return era.isDateOk(value) ? QString() : utf16(row.wrong);
}

/// The first message of the checks in their order; the later ones are not run.
template <class... Checks>
QString firstOf(const Checks&... checks) {
  QString message;
  ((message = checks(), !message.isNull()) || ...);
  return message;
}

QString datesMessage(const ClaimRecord& claim, const frame::EraDates& era) {
  for (const DateRow& row : kDates)
    if (const QString message = dateMessage(claim, row, era); !message.isNull()) return message;
  return {};
}

/// The part that both lists have in the same order.
QString commonMessage(const ClaimRecord& claim, const GridCodes& codes, const frame::EraDates& era) {
  return firstOf(
      [&] {
        return blankMessage(claim, claim::printedInsurance, u"施術録の保険の種類が選択されていません。");
      },
      [&] { return gridFilledMessage(codes); }, [&] { return gridMixedMessage(codes); },
      [&] { return datesMessage(claim, era); });
}

QString monthNumberMessage(const ClaimRecord& claim) {
  const QString number = claim.get(claim::monthNumber);
  if (number.isEmpty()) return {};
  for (int month = 1; month <= 12; ++month)
    if (number == QString::number(month)) return {};
  return u"申請月が正しく入力されていません。"_s;
}

QString reportDateMessage(const ClaimRecord& claim, const frame::EraDates& era) {
  if (!claim.ticked(claim::report)) return {};
  const QString date = claim.get(claim::reportDate);
  if (date.isEmpty()) return u"施術報告書交付年月日（必須）の欄に日付が入力されていません。"_s;
  if (!era.isDateOk(date)) return u"施術報告書交付年月日（必須）の欄に日付が正確ではありません。"_s;
  return {};
}

/// 前回の施術報告書交付年月: an era month, no day and no western year. `full`: with the long text of the full
/// list.
QString previousReportMessage(const ClaimRecord& claim, bool full) {
  const QString month = claim.get(claim::lastReportMonth);
  if (month.isEmpty()) return {};
  if (month.endsWith(u'日') || month.startsWith(u'2')) {
    return full ? u"前回の施術報告書交付年月が正しく入力されていません。日まで入れずに、"
                  u"令和6年5月のように月までにして、和暦で入力してください。"_s
                : utf16(kPreviousReportWrong);
  }
  return month.startsWith(u"平成") || month.startsWith(u"令和") ? QString() : utf16(kPreviousReportWrong);
}

QString fullMessage(const ClaimRecord& claim, const frame::EraDates& era, QStringList& warnings) {
  const GridCodes codes = gridCodes(claim);
  const MonthFlags flags = monthFlags(claim.get(claim::month), era);
  return firstOf(
      [&] { return blankMessage(claim, claim::insurerName, u"保険証の保険者名が記入されていません。"); },
      [&] { return commonMessage(claim, codes, era); },
      [&] { return gridCodesMessage(codes, claim, flags.isAfter202012, warnings); },
      [&] { return monthNumberMessage(claim); }, [&] { return reportDateMessage(claim, era); },
      [&] { return previousReportMessage(claim, true); }, [&] { return specialAreaMessage(claim); },
      [&] { return flags.isAfter202410 ? areaNumbersMessage(claim) : QString(); });
}

QString fastMessage(const ClaimRecord& claim, const frame::EraDates& era, const QStringList& openWindows) {
  return firstOf(
      [&] { return blankMessage(claim, claim::insuranceKind, u"保険の種類が選択されていません。"); },
      [&] { return commonMessage(claim, gridCodes(claim), era); },
      [&] { return openWindowMessage(openWindows, false); },
      [&] { return previousReportMessage(claim, false); });
}

CheckResult resultOf(const QString& failure, QStringList warnings) {
  CheckResult result{!failure.isNull(), std::move(warnings)};
  if (result.stop) result.messages.append(failure);
  return result;
}

}  // namespace

CheckResult checkClaimFull(const ClaimRecord& claim, const frame::EraDates& era) {
  QStringList warnings;
  const QString failure = fullMessage(claim, era, warnings);
  return resultOf(failure, warnings);
}

CheckResult checkClaimFast(const ClaimRecord& claim, const frame::EraDates& era,
                           const QStringList& openWindows) {
  return resultOf(fastMessage(claim, era, openWindows), {});
}

QString insurerNumberMessage(const QString& printedInsurance, const QString& number) {
  return printedInsurance == u"後期高齢" && number.startsWith(u"39")
             ? u"後期高齢の場合､保険者番号の頭にある39は削除してください"_s
             : QString();
}

}  // namespace claims

#pragma once

#include <QString>
#include <optional>

#include "frame/core/patient.h"
#include "platform/route/route.h"

// Routes to screens that this program does not have yet. Commands that lead to them say so by the screen's
// name. A route moves to routes.h when its screen is built; a test holds this list against the registered
// screens.

namespace routes::unbuilt {

using screen::ScreenName;

/// Receipts: of a day, or of a patient.
struct ReceiptChoice {
  static constexpr ScreenName screen{u"領収証選択"};
  QString day{};  ///< era form
  std::optional<frame::Patient> patient{};
  std::optional<ScreenName> opener{};
  qint64 claim = 0;  ///< ID of the claim it was opened from
};
struct DetailedReceipt {
  static constexpr ScreenName screen{u"明細領収"};
  frame::Patient patient;
  std::optional<ScreenName> opener{};
};
struct BlankForms {
  static constexpr ScreenName screen{u"用紙印刷"};
};
struct DetailChart {
  static constexpr ScreenName screen{u"治療台帳detail"};
  QString serial;
  std::optional<qint64> visit{};  ///< ID
};
struct PictureChart {
  static constexpr ScreenName screen{u"GEDIT"};
  QString serial;
};
struct ExportPatients {
  static constexpr ScreenName screen{u"CSVEXCEL"};
};
struct PrintPictures {
  static constexpr ScreenName screen{u"jintaizu"};
};
struct CollectiveTables {
  static constexpr ScreenName screen{u"レセプト一覧表2"};
};
struct RouteSheets {
  static constexpr ScreenName screen{u"往療行程の印刷"};
};
struct SummaryConditions {
  static constexpr ScreenName screen{u"施術録"};
};
struct SummarySheets {
  static constexpr ScreenName screen{u"総括表700_1"};
};
struct TakingsMonth {
  static constexpr ScreenName screen{u"集計年月"};
};
struct MemoForMail {
  static constexpr ScreenName screen{u"データ送"};
};
struct MemoForMail2 {
  static constexpr ScreenName screen{u"データ送2"};
};
struct TreatmentReport {
  static constexpr ScreenName screen{u"施術報告書"};
  qint64 claim = 0;
};
/// A copy of the report for another month.
struct ReportCopy {
  static constexpr ScreenName screen{u"施術報告書コピー"};
};
struct VisitBreakdown {
  static constexpr ScreenName screen{u"往療内訳表"};
  qint64 claim = 0;
};
struct ReasonSheetAcupuncture {
  static constexpr ScreenName screen{u"frm1年16回以上印刷は"};
  qint64 claim = 0;
};
struct ReasonSheetMassage {
  static constexpr ScreenName screen{u"frm1年16回以上印刷マ"};
  qint64 claim = 0;
};
struct FrequentPlan {
  static constexpr ScreenName screen{u"頻回の理由と計画書"};
  qint64 claim = 0;
};
struct NewRemarks {
  static constexpr ScreenName screen{u"新摘要欄"};
  qint64 claim = 0;
};
struct MemoConversion {
  static constexpr ScreenName screen{u"メモデータ変換"};
  qint64 claim = 0;
};
struct VisitAddresses {
  static constexpr ScreenName screen{u"往療時の住所代入"};
  qint64 claim = 0;
};
struct VisitDates {
  static constexpr ScreenName screen{u"往療時の日付代入"};
  qint64 claim = 0;
};
struct StartPointAddresses {
  static constexpr ScreenName screen{u"往療起点への住所代入"};
  qint64 claim = 0;
};
struct StartPoints {
  static constexpr ScreenName screen{u"往療起点の登録の表示"};
  qint64 claim = 0;
};
struct RouteHelp {
  static constexpr ScreenName screen{u"往療行程の記入の仕方"};
  qint64 claim = 0;
};
struct TreatmentRecord {
  static constexpr ScreenName screen{u"施術録単体印刷"};
};
struct TreatmentRecord2024 {
  static constexpr ScreenName screen{u"施術録単体印刷2024"};
};

/// The month's print of all claims.
struct MonthRun {
  QString month;         ///< 申請年月
  QString kind;          ///< 鍼灸 or あマ
  bool byArea = false;   ///< 局所別計算用紙
  bool withEra = false;  ///< the era word in the claim month
};
struct MonthPrint : MonthRun {
  static constexpr ScreenName screen{u"年月印刷"};
};
struct MonthPrint2018 : MonthRun {
  static constexpr ScreenName screen{u"年月印刷2018"};
};
struct MonthPrint2018Aichi : MonthRun {
  static constexpr ScreenName screen{u"年月印刷2018aimakai"};
};
struct MonthPrint2024 : MonthRun {
  static constexpr ScreenName screen{u"年月印刷2024"};
};
struct MonthPrint2024Aichi : MonthRun {
  static constexpr ScreenName screen{u"年月印刷2024aimakai"};
};

/// Names of them all.
inline constexpr ScreenName kAll[] = {
    ReceiptChoice::screen,       DetailedReceipt::screen,     BlankForms::screen,
    DetailChart::screen,         PictureChart::screen,        ExportPatients::screen,
    PrintPictures::screen,       CollectiveTables::screen,    RouteSheets::screen,
    SummaryConditions::screen,   SummarySheets::screen,       TakingsMonth::screen,
    MemoForMail::screen,         MemoForMail2::screen,        TreatmentReport::screen,
    ReportCopy::screen,          VisitBreakdown::screen,      ReasonSheetAcupuncture::screen,
    ReasonSheetMassage::screen,  FrequentPlan::screen,        NewRemarks::screen,
    MemoConversion::screen,      VisitAddresses::screen,      VisitDates::screen,
    StartPointAddresses::screen, StartPoints::screen,         RouteHelp::screen,
    TreatmentRecord::screen,     TreatmentRecord2024::screen, MonthPrint::screen,
    MonthPrint2018::screen,      MonthPrint2018Aichi::screen, MonthPrint2024::screen,
    MonthPrint2024Aichi::screen,
};

}  // namespace routes::unbuilt

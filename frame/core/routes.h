#pragma once

#include <QDate>
#include <QString>
#include <optional>
#include <variant>

#include "frame/core/patient.h"
#include "platform/route/route.h"

// The ways to all screens: each route is a screen's name with what its opener hands over. Screens know each
// other by these alone.

namespace routes {

using screen::ScreenName;

// ---- Start and settings ----

struct Splash {
  static constexpr ScreenName screen{u"frmSplash"};
};
struct MainMenu {
  static constexpr ScreenName screen{u"選択3"};
};
struct Topics {
  static constexpr ScreenName screen{u"topics"};
};
struct About {
  static constexpr ScreenName screen{u"frmAbout"};
};
struct TextHelp {
  static constexpr ScreenName screen{u"テキストヘルプ"};
};
struct Folders {
  static constexpr ScreenName screen{u"LANフォルダ指定"};
};
struct AskFolders {
  static constexpr ScreenName screen{u"LANフォルダ指定の実行"};
};
struct Profile {
  static constexpr ScreenName screen{u"登録"};
};
struct AskProfile {
  static constexpr ScreenName screen{u"登録の実行"};
};
struct Licences {
  static constexpr ScreenName screen{u"登録4"};
};
struct OwnCaptions {
  static constexpr ScreenName screen{u"txtbox"};
};
struct Fees {
  static constexpr ScreenName screen{u"料金変更"};
};
/// Ends the program, so that new settings are read at the next start.
struct AskEnd {
  static constexpr ScreenName screen{u"終了1"};
};
struct AskClose {
  static constexpr ScreenName screen{u"閉じる1"};
  std::optional<ScreenName> opener{};
};

struct Restart {
  static constexpr ScreenName screen{u"qvchkbox2"};
};
struct PrintTroubleHelp {
  static constexpr ScreenName screen{u"印刷出来ない場合の処置"};
};

// ---- Patients and visits ----

struct PatientSearch {
  static constexpr ScreenName screen{u"選択4"};
  std::optional<QString> name{};  ///< goes into the search row
};
struct PatientRegister {
  static constexpr ScreenName screen{u"治療台帳4"};
  struct AsShown {};    ///< the row on view, as the file holds it now
  struct Announced {};  ///< the same, and it is said who is on view
  struct NewPatient {};
  struct BySerial {
    QString serial;
  };
  /// A booked person: found by name, or entered as a new patient.
  struct Booked {
    QString name;
    QString number;  ///< 患者ID of the booking, blank for somebody who is no patient yet
  };
  struct Listed {
    qint64 id;
    QString name;  ///< goes into the search row
  };
  std::variant<AsShown, Announced, NewPatient, BySerial, Booked, Listed> who{};
};
/// Offers a first patient where the register is empty.
struct AskFirstPatient {
  static constexpr ScreenName screen{u"無データ"};
};
struct PatientList {
  static constexpr ScreenName screen{u"一覧表"};
};
struct SearchPatientList {
  static constexpr ScreenName screen{u"抽出2"};
};
struct ExtractPatients {
  static constexpr ScreenName screen{u"抽出3"};
};
struct SortPatients {
  static constexpr ScreenName screen{u"ソート1"};
};
/// Long texts of a patient.
struct PatientTexts {
  static constexpr ScreenName screen{u"治療台帳2"};
  QString serial;
  QString name;
};
struct VisitLedger {
  static constexpr ScreenName screen{u"治療台帳3"};
  /// The ledger of a patient.
  struct Of {
    QString serial;
    QString name;
    QString birth;
    std::optional<ScreenName> opener{};  ///< gets the keyboard back
  };
  struct AsShown {};
  struct NewVisit {};  ///< of the patient on view
  std::variant<AsShown, Of, NewVisit> what{};
};
/// Offers a first visit where a patient has none.
struct AskFirstVisit {
  static constexpr ScreenName screen{u"カルテ2の新規"};
  QString name;
};
struct SearchVisits {
  static constexpr ScreenName screen{u"カルテ2の抽出"};
};
struct SortVisits {
  static constexpr ScreenName screen{u"ソート5"};
};
struct Acupoints {
  static constexpr ScreenName screen{u"frm経穴"};
};
struct Phrases {
  static constexpr ScreenName screen{u"frmCLmoji"};
};
struct PhrasePairs {
  static constexpr ScreenName screen{u"frmCl2moji"};
};

// ---- Appointments and takings ----

struct TodaysBookings {
  static constexpr ScreenName screen{u"今日の予約"};
  bool lastRow = false;   ///< begins at the last row
  bool showsDay = false;  ///< shows the day that was asked for last
};
struct Booking {
  static constexpr ScreenName screen{u"予約2"};
  struct NewBooking {
    std::optional<frame::Patient> patient;
  };
  struct Stored {
    qint64 id;
  };
  struct Back {};  ///< as it was left
  std::variant<NewBooking, Stored, Back> what{};
  std::optional<ScreenName> opener{};  ///< shown again when it closes
};
/// Asks what becomes of a booking that was not stored.
struct AskUnfinishedBooking {
  static constexpr ScreenName screen{u"更新の確認"};
  std::optional<ScreenName> caller{};
};
struct WeekOfBookings {
  static constexpr ScreenName screen{u"予約週間表"};
};
struct BookingCalendar {
  static constexpr ScreenName screen{u"予約カレンダー"};
};
struct TakingsCalendar {
  static constexpr ScreenName screen{u"集計カレンダー"};
};
struct AskCalendar {
  static constexpr ScreenName screen{u"カレンダーのチェック"};
};
struct PickDayOfBookings {
  static constexpr ScreenName screen{u"抽出4"};
};
struct PickDayOfWeek {
  static constexpr ScreenName screen{u"抽出5"};
};
struct Takings {
  static constexpr ScreenName screen{u"集計"};
  bool lastRow = false;  ///< begins at the last row
  QDate day{};           ///< the visits of this day, where it is valid
};
struct SearchTakings {
  static constexpr ScreenName screen{u"集計抽出"};
};
struct SortTakings {
  static constexpr ScreenName screen{u"ソート2"};
};
/// Sums over visits, in yen where they are amounts.
struct Totals {
  static constexpr ScreenName screen{u"集計総合金額"};
  bool ofOnePatient = false;
  qint64 rows = 0;
  qint64 insurer = 0;
  qint64 share = 0;
  qint64 treatment = 0;
  qint64 receipts = 0;
  qint64 newPatients = 0;
};

/// Sums of claims.
struct ClaimTotals : Totals {
  static constexpr ScreenName screen{u"集計レセ総合金額"};
};

// ---- Claims ----

struct ClaimList {
  static constexpr ScreenName screen{u"レセプト一覧表"};
  std::optional<QString> criteria{};  ///< narrows the list
  std::optional<QString> order{};     ///< sorts it: "ID DESC"
};
struct SortClaims {
  static constexpr ScreenName screen{u"ソート3"};
};
struct ClaimForm {
  static constexpr ScreenName screen{u"frmレセプトフォーム"};
  static constexpr char16_t storeCommand[] =
      u"cmdUpdate";  ///< the form's 登録, for an opener that goes there
  qint64 id = 0;
  std::optional<ScreenName> opener{};  ///< gets the keyboard back at 登録 and 閉じる; none: the claim list
};
struct NewClaim {
  static constexpr ScreenName screen{u"新規レセプト"};
  frame::Patient patient;
};
struct ClaimChoice {
  static constexpr ScreenName screen{u"レセプト選択"};
};
struct ConsentWatch {
  static constexpr ScreenName screen{u"同意期限一ヶ月"};
};
struct ExtractConsents {
  static constexpr ScreenName screen{u"抽出6"};
};
struct ClaimMonth {
  static constexpr ScreenName screen{u"年月"};
};
struct DoctorRegister {
  static constexpr ScreenName screen{u"登録2"};
  bool fromClaim = false;  ///< the claim on display offers its values
};
struct InsurerRegister {
  static constexpr ScreenName screen{u"登録3"};
  bool fromClaim = false;
};
struct ShareFormula {
  static constexpr ScreenName screen{u"計算式確認"};
};
struct FillingHelp {
  static constexpr ScreenName screen{u"記入の仕方"};
};
struct FillingHelp2018 {
  static constexpr ScreenName screen{u"記入の仕方2018"};
};
struct FillingHelp2024 {
  static constexpr ScreenName screen{u"記入の仕方2024"};
};
struct FeesSteps1 {
  static constexpr ScreenName screen{u"施術料金1"};
};
struct FeesSteps2 {
  static constexpr ScreenName screen{u"施術料金2"};
};
struct Fees2018Acupuncture {
  static constexpr ScreenName screen{u"施術料金2018H"};
};
/// 2108 is the screen's own name.
struct Fees2018Massage {
  static constexpr ScreenName screen{u"施術料金2108A"};
};
struct Fees2024Acupuncture {
  static constexpr ScreenName screen{u"施術料金2024H"};
};
struct Fees2024Massage {
  static constexpr ScreenName screen{u"施術料金2024A"};
};

// ---- Printing ----

struct ClaimPrint {
  static constexpr ScreenName screen{u"レセプト印刷"};
};
struct ClaimPrint2018 {
  static constexpr ScreenName screen{u"レセプト印刷2018"};
};
struct ClaimPrint2018Aichi {
  static constexpr ScreenName screen{u"レセプト印刷2018aimakai"};
};
struct ClaimPrint2024 {
  static constexpr ScreenName screen{u"レセプト印刷2024"};
};
struct ClaimPrint2024Aichi {
  static constexpr ScreenName screen{u"レセプト印刷2024aimakai"};
};
struct TokyoAidPrint {
  static constexpr ScreenName screen{u"東京助成レセプト印刷"};
};
struct TokyoAidPrint2024 {
  static constexpr ScreenName screen{u"東京助成レセプト印刷2024"};
};
struct IshikawaAidPrint {
  static constexpr ScreenName screen{u"石川県の公費レセプト印刷"};
};
struct IshikawaAidPrint2024 {
  static constexpr ScreenName screen{u"石川県の公費レセプト印刷2024"};
};
struct ItemsOnlyNote {
  static constexpr ScreenName screen{u"項目のみ印刷の注意事項"};
};
struct PrinterOptions {
  static constexpr ScreenName screen{u"プリンターオプション"};
};

}  // namespace routes

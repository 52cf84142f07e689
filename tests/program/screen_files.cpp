#include "tests/program/screen_files.h"

#include <algorithm>

namespace program {
namespace {

constexpr ScreenFile kFiles[] = {
    {u"frmAbout", "about"},
    {u"frm経穴", "acupoints"},
    {u"txtbox", "app_captions"},
    {u"予約2", "booking"},
    {u"予約カレンダー", "booking_calendar"},
    {u"抽出4", "booking_day"},
    {u"抽出5", "booking_day_of_week_view"},
    {u"予約週間表", "booking_week"},
    {u"今日の予約", "bookings_today"},
    {u"カレンダーのチェック", "calendar_notice"},
    {u"レセプト選択", "claim_choice"},
    {u"frmレセプトフォーム", "claim_form"},
    {u"レセプト一覧表", "claim_list"},
    {u"ソート3", "claim_list_sort"},
    {u"年月", "claim_month"},
    {u"新規レセプト", "claim_new"},
    {u"レセプト印刷2024", "claim_print_2024"},
    {u"閉じる1", "close_prompt"},
    {u"抽出6", "consent_extract"},
    {u"同意期限一ヶ月", "consent_watch"},
    {u"登録2", "doctors"},
    {u"料金変更", "fees"},
    {u"記入の仕方", "filling_help"},
    {u"記入の仕方2018", "filling_help_2018"},
    {u"記入の仕方2024", "filling_help_2024"},
    {u"LANフォルダ指定", "folders"},
    {u"LANフォルダ指定の実行", "folders_prompt"},
    {u"テキストヘルプ", "help_text"},
    {u"登録3", "insurers"},
    {u"項目のみ印刷の注意事項", "items_only_note"},
    {u"登録4", "licences"},
    {u"選択3", "main_menu"},
    {u"無データ", "no_data_prompt"},
    {u"治療台帳4", "patient"},
    {u"治療台帳2", "patient_chart"},
    {u"抽出3", "patient_extract"},
    {u"一覧表", "patient_list"},
    {u"抽出2", "patient_list_extract"},
    {u"ソート1", "patient_list_sort"},
    {u"選択4", "patient_search"},
    {u"frmCLmoji", "phrases"},
    {u"frmCl2moji", "phrases_2"},
    {u"施術料金1", "preview_acupuncture_1"},
    {u"施術料金2018H", "preview_acupuncture_2018"},
    {u"施術料金2024H", "preview_acupuncture_2024"},
    {u"施術料金2", "preview_massage_2"},
    {u"施術料金2108A", "preview_massage_2018"},
    {u"施術料金2024A", "preview_massage_2024"},
    {u"印刷出来ない場合の処置", "print_trouble_prompt"},
    {u"プリンターオプション", "printer_options"},
    {u"登録", "profile"},
    {u"登録の実行", "profile_prompt"},
    {u"終了1", "quit_prompt"},
    {u"qvchkbox2", "restart_prompt"},
    {u"計算式確認", "share_formula"},
    {u"frmSplash", "splash"},
    {u"集計", "takings"},
    {u"集計カレンダー", "takings_calendar"},
    {u"集計抽出", "takings_extract"},
    {u"ソート2", "takings_sort"},
    {u"topics", "topics"},
    {u"集計レセ総合金額", "totals_of_claims"},
    {u"集計総合金額", "totals_of_visits"},
    {u"レセプト印刷", "unbuilt_claim_print"},
    {u"レセプト印刷2018", "unbuilt_claim_print_2018"},
    {u"レセプト印刷2018aimakai", "unbuilt_claim_print_2018_aimakai"},
    {u"レセプト印刷2024aimakai", "unbuilt_claim_print_2024_aimakai"},
    {u"石川県の公費レセプト印刷", "unbuilt_ishikawa_print"},
    {u"石川県の公費レセプト印刷2024", "unbuilt_ishikawa_print_2024"},
    {u"東京助成レセプト印刷", "unbuilt_tokyo_print"},
    {u"東京助成レセプト印刷2024", "unbuilt_tokyo_print_2024"},
    {u"更新の確認", "update_prompt"},
    {u"治療台帳3", "visit_ledger"},
    {u"カルテ2の抽出", "visit_ledger_extract"},
    {u"ソート5", "visit_ledger_sort"},
    {u"カルテ2の新規", "visit_new"},
};

}  // namespace

std::span<const ScreenFile> screenFiles() { return kFiles; }

QString transcriptFile(const QString& screen, const QString& way) {
  const auto row =
      std::ranges::find_if(kFiles, [&](const ScreenFile& each) { return screen == each.screen; });
  return row == std::end(kFiles) ? QString() : QLatin1String(row->stem) + way + QLatin1String(".txt");
}

}  // namespace program

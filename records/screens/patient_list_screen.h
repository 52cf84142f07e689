#pragma once

#include "frame/core/run_state.h"
#include "platform/report/report_operations.h"
#include "platform/screen/list_screen.h"
#include "records/core/label_sheet.h"

namespace records {

/// 一覧表: the patients as a list, narrowed by 抽出2 and 抽出3, sorted by ソート1; labels of what is on view.
///
/// Each extraction searches what the list shows, so that a second one narrows the first. 全患者表示及び再表示
/// reads the whole table again. The patient of the row goes back to the patient screen, which shows the
/// patient and puts the name into its search row; the search dialog, if it is open, gets the name too.
class PatientListScreen : public screen::ListScreen {
 public:
  PatientListScreen(screen::Services& services, frame::RunState& run, report::ReportOperations& engine);

  void onLoad() override;
  QStringList openingTexts() const override;
  void rowShown(int sourceNumber) override;

  void showAll();
  void handOver();
  void printLabels();
  void finish() { close(); }

 protected:
  bool openWhole() override;
  QString noRowsToSortText() const override;
  QStringList rowOnView() const override;
  QStringList countOnView() const override;

 private:
  /// The addresses of all rows on view, in their order.
  text::Result<QList<LabelAddress>> addresses() const;
  static void drawSheet(report::ReportOperations& paper, const QList<LabelAddress>& all, int sheet);
  frame::RunState& m_run;
  report::ReportOperations& m_engine;
};

}  // namespace records

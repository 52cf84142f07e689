#pragma once

#include <QHash>
#include <QJsonArray>

#include "platform/report/report_operations.h"

namespace rulecheck {

/// What an item of the sheet has become.
struct ItemOutcome {
  QString text;
  bool visible = false;
};

/// Writes down the calls of one print run and hands them on to the engine.
class PrintRecorder final : public report::ReportOperations {
 public:
  /// The items that a template shows as it is stored.
  using Stored = QHash<QString, ItemOutcome> (*)(const QString& folder, const QString& fileName);

  PrintRecorder(report::ReportOperations& engine, QString folder, Stored stored)
      : m_engine(engine), m_folder(std::move(folder)), m_stored(stored) {}

  const QJsonArray& calls() const { return m_calls; }
  /// Every item touched, or shown by the template.
  const QHash<QString, ItemOutcome>& items() const { return m_items; }

  qint64 PR_GetPrinterDC() override;
  int PR_StartDC(quintptr window, qint64 device, const QString& title, int flags) override;
  int PR_LoadReport(int a, int b, const QString& fileName) override;
  void PR_RepSetText(const QString& item, const QString& text) override;
  void PR_RepSetVisible(const QString& item, int flag) override;
  void PR_RepSetTextAlign(const QString& item, int align) override;
  void PR_PlayReport() override;
  void PR_EndDoc() override;
  void PR_AbortDoc() override;
  void PR_PrinterSetupDlg(quintptr) override {}
  void PR_SetMargin(int, int) override {}
  void PR_SetScale() override {}
  void PR_SetFont(const QString&) override {}
  void PR_SetFontSize(int) override {}
  void PR_Output(float, float, const QString&) override {}
  void PR_SetPen(int) override {}
  void PR_Line(float, float, float, float) override {}
  void PR_EndPage() override {}

 private:
  report::ReportOperations& m_engine;
  QString m_folder;
  Stored m_stored;
  QJsonArray m_calls;
  QHash<QString, ItemOutcome> m_items;
};

}  // namespace rulecheck

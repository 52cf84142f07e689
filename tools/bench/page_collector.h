#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include "platform/report/report_operations.h"

namespace bench {

/// Collects what a mapping makes visible, in place of the engine.
class PageCollector final : public report::ReportOperations {
 public:
  /// Items that print, with their texts ("" for a mark).
  QHash<QString, QString> page() const {
    QHash<QString, QString> shown;
    for (const QString& item : m_visible) shown.insert(item, m_texts.value(item));
    return shown;
  }
  void next() {
    m_visible.clear();
    m_texts.clear();
  }

  qint64 PR_GetPrinterDC() override { return 1; }
  int PR_StartDC(quintptr, qint64, const QString&, int) override { return 1; }
  int PR_LoadReport(int, int, const QString&) override { return 0; }
  void PR_RepSetText(const QString& item, const QString& text) override { m_texts.insert(item, text); }
  void PR_RepSetVisible(const QString& item, int flag) override {
    if (flag == report::kHidden)
      m_visible.remove(item);
    else
      m_visible.insert(item);
  }
  void PR_RepSetTextAlign(const QString&, int) override {}
  void PR_PlayReport() override {}
  void PR_EndDoc() override {}
  void PR_AbortDoc() override {}
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
  QSet<QString> m_visible;
  QHash<QString, QString> m_texts;
};

}  // namespace bench

#pragma once

#include <QHash>
#include <QVariantList>
#include <vector>

#include "platform/report/report_operations.h"

namespace report {

/// One call, with its arguments in order.
struct RecordedCall {
  QString name;
  QVariantList arguments;

  bool operator==(const RecordedCall&) const = default;
};

/// What the calls made of an item.
struct RecordedItem {
  QString text;
  bool visible = false;
};

/// Writes down the calls of a print run, in order, and hands them on to an engine if there is one. Without
/// one every operation succeeds, or gives what was set here.
class RecordingOperations final : public ReportOperations {
 public:
  explicit RecordingOperations(ReportOperations* engine = nullptr) : m_engine(engine) {}

  const std::vector<RecordedCall>& calls() const { return m_calls; }
  /// The names of the calls alone.
  QStringList names() const;
  /// The items touched since the last template was loaded.
  const QHash<QString, RecordedItem>& items() const { return m_items; }
  /// Text of an item that is visible; null otherwise.
  QString printed(const QString& item) const;
  void clear();

  int startResult = 1;
  int loadResult = 0;
  text::Done documentResult;

  qint64 PR_GetPrinterDC() override;
  int PR_StartDC(quintptr window, qint64 device, const QString& title, int flags) override;
  int PR_LoadReport(int a, int b, const QString& fileName) override;
  void PR_RepSetText(const QString& item, const QString& text) override;
  void PR_RepSetVisible(const QString& item, int flag) override;
  void PR_RepSetTextAlign(const QString& item, int align) override;
  void PR_PlayReport() override;
  void PR_EndDoc() override;
  void PR_AbortDoc() override;
  void PR_PrinterSetupDlg(quintptr window) override;
  void PR_SetMargin(int left, int top) override;
  void PR_SetScale() override;
  void PR_SetFont(const QString& family) override;
  void PR_SetFontSize(int size) override;
  void PR_Output(float x, float y, const QString& text) override;
  void PR_SetPen(int width) override;
  void PR_Line(float x1, float y1, float x2, float y2) override;
  void PR_EndPage() override;
  text::Done lastDocument() const override { return m_engine ? m_engine->lastDocument() : documentResult; }

 private:
  template <class... Parameters, class... Arguments>
  void relay(const char* name, void (ReportOperations::*operation)(Parameters...),
             const Arguments&... arguments);

  ReportOperations* m_engine;
  std::vector<RecordedCall> m_calls;
  QHash<QString, RecordedItem> m_items;
};

}  // namespace report

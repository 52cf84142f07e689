#pragma once

#include <QHash>
#include <QStringList>

#include "platform/report/report_operations.h"

namespace printing::tests {

/// Takes every call of the report engine down, and answers as it is told.
class SpyEngine final : public report::ReportOperations {
 public:
  int startResult = 1;
  QStringList missingTemplates;
  text::Done documentResult;

  QStringList calls;      ///< without the item calls
  QStringList itemCalls;  ///< "-1 Name1", "0 Text1", "Name1=text", in order
  QHash<QString, bool> visible;
  QHash<QString, QString> texts;
  QString loaded;

  /// The item as it prints: its text, "" for a mark, null where it does not show.
  QString printed(const QString& item) const {
    if (!visible.value(item, false)) return QString();
    return texts.value(item, QStringLiteral(""));
  }
  bool marked(const QString& item) const { return visible.value(item, false); }
  bool touched(const QString& item) const { return visible.contains(item) || texts.contains(item); }
  /// "item=text" of all that prints, sorted.
  QStringList sheet() const {
    QStringList lines;
    for (auto it = visible.begin(); it != visible.end(); ++it)
      if (it.value()) lines << it.key() + u'=' + texts.value(it.key());
    lines.sort();
    return lines;
  }

  text::Done lastDocument() const override { return documentResult; }
  qint64 PR_GetPrinterDC() override {
    calls << QStringLiteral("PR_GetPrinterDC");
    return 7;
  }
  int PR_StartDC(quintptr window, qint64 device, const QString& title, int flags) override {
    calls << QStringLiteral("PR_StartDC %1 %2 %3 %4").arg(window).arg(device).arg(title).arg(flags);
    return startResult;
  }
  int PR_LoadReport(int a, int b, const QString& fileName) override {
    calls << QStringLiteral("PR_LoadReport %1 %2 %3").arg(a).arg(b).arg(fileName);
    loaded = fileName;
    visible.clear();
    texts.clear();
    return missingTemplates.contains(fileName) ? 1 : 0;
  }
  void PR_RepSetText(const QString& item, const QString& text) override {
    itemCalls << item + u'=' + text;
    texts.insert(item, text);
  }
  void PR_RepSetVisible(const QString& item, int flag) override {
    itemCalls << QString::number(flag) + u' ' + item;
    visible.insert(item, flag == report::kShown);
  }
  void PR_RepSetTextAlign(const QString& item, int align) override {
    itemCalls << QStringLiteral("align %1 %2").arg(item).arg(align);
  }
  void PR_PlayReport() override { calls << QStringLiteral("PR_PlayReport"); }
  void PR_EndDoc() override { calls << QStringLiteral("PR_EndDoc"); }
  void PR_AbortDoc() override { calls << QStringLiteral("PR_AbortDoc"); }
  void PR_PrinterSetupDlg(quintptr window) override {
    calls << QStringLiteral("PR_PrinterSetupDlg %1").arg(window);
  }
  void PR_SetMargin(int left, int top) override {
    calls << QStringLiteral("PR_SetMargin %1 %2").arg(left).arg(top);
  }
  void PR_SetScale() override { calls << QStringLiteral("PR_SetScale"); }
  void PR_SetFont(const QString& family) override { calls << QStringLiteral("PR_SetFont ") + family; }
  void PR_SetFontSize(int size) override { calls << QStringLiteral("PR_SetFontSize %1").arg(size); }
  void PR_Output(float x, float y, const QString& text) override {
    calls << QStringLiteral("PR_Output %1 %2 %3").arg(x).arg(y).arg(text);
  }
  void PR_SetPen(int width) override { calls << QStringLiteral("PR_SetPen %1").arg(width); }
  void PR_Line(float x1, float y1, float x2, float y2) override {
    calls << QStringLiteral("PR_Line %1 %2 %3 %4").arg(x1).arg(y1).arg(x2).arg(y2);
  }
  void PR_EndPage() override { calls << QStringLiteral("PR_EndPage"); }
};

}  // namespace printing::tests

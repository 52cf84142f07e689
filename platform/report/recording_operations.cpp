#include "platform/report/recording_operations.h"

namespace report {

template <class... Parameters, class... Arguments>
void RecordingOperations::relay(const char* name, void (ReportOperations::*operation)(Parameters...),
                                const Arguments&... arguments) {
  m_calls.push_back({QString::fromLatin1(name), {QVariant(arguments)...}});
  if (m_engine) (m_engine->*operation)(arguments...);
}

QStringList RecordingOperations::names() const {
  QStringList names;
  for (const RecordedCall& call : m_calls) names << call.name;
  return names;
}

QString RecordingOperations::printed(const QString& item) const {
  const auto known = m_items.constFind(item);
  return known != m_items.constEnd() && known->visible ? known->text : QString();
}

void RecordingOperations::clear() {
  m_calls.clear();
  m_items.clear();
}

qint64 RecordingOperations::PR_GetPrinterDC() {
  m_calls.push_back({QStringLiteral("PR_GetPrinterDC"), {}});
  return m_engine ? m_engine->PR_GetPrinterDC() : 1;
}

int RecordingOperations::PR_StartDC(quintptr window, qint64 device, const QString& title, int flags) {
  m_calls.push_back({QStringLiteral("PR_StartDC"), {quint64(window), device, title, flags}});
  return m_engine ? m_engine->PR_StartDC(window, device, title, flags) : startResult;
}

int RecordingOperations::PR_LoadReport(int a, int b, const QString& fileName) {
  m_calls.push_back({QStringLiteral("PR_LoadReport"), {a, b, fileName}});
  m_items.clear();
  return m_engine ? m_engine->PR_LoadReport(a, b, fileName) : loadResult;
}

void RecordingOperations::PR_RepSetText(const QString& item, const QString& text) {
  m_items[item].text = text;
  relay("PR_RepSetText", &ReportOperations::PR_RepSetText, item, text);
}

void RecordingOperations::PR_RepSetVisible(const QString& item, int flag) {
  m_items[item].visible = flag != kHidden;
  relay("PR_RepSetVisible", &ReportOperations::PR_RepSetVisible, item, flag);
}

void RecordingOperations::PR_RepSetTextAlign(const QString& item, int align) {
  relay("PR_RepSetTextAlign", &ReportOperations::PR_RepSetTextAlign, item, align);
}

void RecordingOperations::PR_PlayReport() { relay("PR_PlayReport", &ReportOperations::PR_PlayReport); }
void RecordingOperations::PR_EndDoc() { relay("PR_EndDoc", &ReportOperations::PR_EndDoc); }
void RecordingOperations::PR_AbortDoc() { relay("PR_AbortDoc", &ReportOperations::PR_AbortDoc); }

void RecordingOperations::PR_PrinterSetupDlg(quintptr window) {
  m_calls.push_back({QStringLiteral("PR_PrinterSetupDlg"), {quint64(window)}});
  if (m_engine) m_engine->PR_PrinterSetupDlg(window);
}

void RecordingOperations::PR_SetMargin(int left, int top) {
  relay("PR_SetMargin", &ReportOperations::PR_SetMargin, left, top);
}
void RecordingOperations::PR_SetScale() { relay("PR_SetScale", &ReportOperations::PR_SetScale); }
void RecordingOperations::PR_SetFont(const QString& family) {
  relay("PR_SetFont", &ReportOperations::PR_SetFont, family);
}
void RecordingOperations::PR_SetFontSize(int size) {
  relay("PR_SetFontSize", &ReportOperations::PR_SetFontSize, size);
}
void RecordingOperations::PR_Output(float x, float y, const QString& text) {
  relay("PR_Output", &ReportOperations::PR_Output, x, y, text);
}
void RecordingOperations::PR_SetPen(int width) { relay("PR_SetPen", &ReportOperations::PR_SetPen, width); }
void RecordingOperations::PR_Line(float x1, float y1, float x2, float y2) {
  relay("PR_Line", &ReportOperations::PR_Line, x1, y1, x2, y2);
}
void RecordingOperations::PR_EndPage() { relay("PR_EndPage", &ReportOperations::PR_EndPage); }

}  // namespace report

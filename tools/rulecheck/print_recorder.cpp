#include "tools/rulecheck/print_recorder.h"

namespace rulecheck {

namespace {

template <class... Parts>
QJsonArray call(const char* name, const Parts&... parts) {
  return QJsonArray{QString::fromLatin1(name), parts...};
}

}  // namespace

qint64 PrintRecorder::PR_GetPrinterDC() {
  m_calls.append(call("PR_GetPrinterDC"));
  return m_engine.PR_GetPrinterDC();
}

int PrintRecorder::PR_StartDC(quintptr window, qint64 device, const QString& title, int flags) {
  m_calls.append(call("PR_StartDC", static_cast<qint64>(window), device, title, flags));
  return m_engine.PR_StartDC(window, device, title, flags);
}

int PrintRecorder::PR_LoadReport(int a, int b, const QString& fileName) {
  m_calls.append(call("PR_LoadReport", a, b, fileName));
  const int result = m_engine.PR_LoadReport(a, b, fileName);
  if (result == 0) m_items = m_stored(m_folder, fileName);
  return result;
}

void PrintRecorder::PR_RepSetText(const QString& item, const QString& text) {
  m_calls.append(call("PR_RepSetText", item, text));
  m_items[item].text = text;
  m_engine.PR_RepSetText(item, text);
}

void PrintRecorder::PR_RepSetVisible(const QString& item, int flag) {
  m_calls.append(call("PR_RepSetVisible", item, flag));
  m_items[item].visible = flag != report::kHidden;
  m_engine.PR_RepSetVisible(item, flag);
}

void PrintRecorder::PR_RepSetTextAlign(const QString& item, int align) {
  m_calls.append(call("PR_RepSetTextAlign", item, align));
  m_engine.PR_RepSetTextAlign(item, align);
}

void PrintRecorder::PR_PlayReport() {
  m_calls.append(call("PR_PlayReport"));
  m_engine.PR_PlayReport();
}

void PrintRecorder::PR_EndDoc() {
  m_calls.append(call("PR_EndDoc"));
  m_engine.PR_EndDoc();
}

void PrintRecorder::PR_AbortDoc() {
  m_calls.append(call("PR_AbortDoc"));
  m_engine.PR_AbortDoc();
}

}  // namespace rulecheck

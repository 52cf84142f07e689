#include "platform/report/report_engine.h"

#include "platform/text/clock.h"

namespace report {

ReportEngine::ReportEngine(const QString& programFolder, OpenSink sinks, PrinterDialog dialog)
    : m_shaper(m_fonts),
      m_pictures(programFolder),
      m_painter(m_shaper, m_pictures),
      m_templates(programFolder),
      m_sinks(sinks ? std::move(sinks) : printerSinks(programFolder)),
      m_dialog(std::move(dialog)) {}

int ReportEngine::PR_StartDC(quintptr, qint64, const QString& title, int) {
  PR_AbortDoc();
  auto sink = m_sinks(m_choice);
  if (!sink || !sink->open(title)) return kCannotStart;
  m_sink = std::move(sink);
  m_lastDocument = text::Done();
  m_document = std::make_unique<PdfDocument>(title, text::SystemClock().now());
  m_hand = HandPage();
  return kStarted;
}

int ReportEngine::PR_LoadReport(int, int, const QString& fileName) {
  m_loaded.reset();
  const auto frames = m_templates.load(fileName);
  m_loadFault = frames.ok() ? QString() : frames.fault().message;
  if (!frames.ok()) return 1;
  m_loaded.emplace(frames.value());
  return 0;
}

void ReportEngine::PR_RepSetText(const QString& item, const QString& text) {
  if (ItemState* state = m_loaded ? m_loaded->change(item) : nullptr) state->text = text;
}

void ReportEngine::PR_RepSetVisible(const QString& item, int flag) {
  if (ItemState* state = m_loaded ? m_loaded->change(item) : nullptr) state->shown = flag != kHidden;
}

void ReportEngine::PR_RepSetTextAlign(const QString& item, int align) {
  if (align < 0 || align > 2) return;
  if (ItemState* state = m_loaded ? m_loaded->change(item) : nullptr) state->align = Align(align);
}

void ReportEngine::PR_PlayReport() {
  if (!m_document || !m_loaded) return;
  m_loaded->play(*m_document, m_painter);
}

void ReportEngine::PR_EndDoc() {
  if (!m_document) return;
  if (m_document->page()) PR_EndPage();
  // A document without a page is not given to the printer, and nobody waits for it.
  m_lastDocument = m_document->pages() > 0 ? m_sink->take(m_document->finish()) : text::Done();
  PR_AbortDoc();
}

void ReportEngine::PR_AbortDoc() {
  m_loaded.reset();
  m_document.reset();
  m_sink.reset();
}

void ReportEngine::PR_PrinterSetupDlg(quintptr window) {
  if (m_dialog) m_dialog(window, m_choice);
}

// Pages drawn by hand are one paragraph each.
Canvas* ReportEngine::handPage() {
  if (!m_document) return nullptr;
  if (Canvas* open = m_document->page()) return open;
  const Paper paper = chosenPaper(m_choice);
  Canvas& canvas = m_document->beginPage(paper.w, paper.h);
  canvas.openParagraph(0);
  return &canvas;
}

void ReportEngine::PR_Output(float x, float y, const QString& text) {
  if (Canvas* page = handPage()) m_hand.output(*page, m_shaper, x, y, text);
}

void ReportEngine::PR_Line(float x1, float y1, float x2, float y2) {
  if (Canvas* page = handPage()) m_hand.line(*page, x1, y1, x2, y2);
}

void ReportEngine::PR_EndPage() {
  Canvas* page = handPage();
  if (!page) return;
  page->closeParagraph();
  m_document->endPage();
}

}  // namespace report

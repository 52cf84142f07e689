#pragma once

#include <functional>
#include <optional>

#include "platform/report/document_sink.h"
#include "platform/report/hand_page.h"
#include "platform/report/loaded_form.h"
#include "platform/report/pdf_document.h"
#include "platform/report/report_operations.h"
#include "platform/report/template_store.h"

namespace report {

/// Shows the printer dialog over the window; changes the choice when the user accepts.
using PrinterDialog = std::function<void(quintptr window, PrinterChoice& choice)>;

/// Codes of PR_StartDC that this engine gives.
inline constexpr int kStarted = 1;
inline constexpr int kCannotStart = 11;

/// The report engine: templates of the program folder, filled by item name, played into one PDF document
/// that goes to the chosen printer.
class ReportEngine final : public ReportOperations {
 public:
  /// Without sinks the chosen printer takes the documents. The dialog may be empty.
  explicit ReportEngine(const QString& programFolder, OpenSink sinks = {}, PrinterDialog dialog = {});

  /// The printer of this run.
  PrinterChoice& printerChoice() { return m_choice; }
  void setPrinterDialog(PrinterDialog dialog) { m_dialog = std::move(dialog); }
  /// Why the last PR_LoadReport failed, for the tools; the program never asks.
  const QString& loadFault() const { return m_loadFault; }

  qint64 PR_GetPrinterDC() override { return 1; }
  int PR_StartDC(quintptr window, qint64 device, const QString& title, int flags) override;
  int PR_LoadReport(int a, int b, const QString& fileName) override;
  void PR_RepSetText(const QString& item, const QString& text) override;
  void PR_RepSetVisible(const QString& item, int flag) override;
  /// 0 left, 1 centre, 2 right; the forms' insurer name box is set to 1.
  void PR_RepSetTextAlign(const QString& item, int align) override;
  void PR_PlayReport() override;
  void PR_EndDoc() override;
  void PR_AbortDoc() override;
  void PR_PrinterSetupDlg(quintptr window) override;
  void PR_SetMargin(int left, int top) override { m_hand.setMargin(left, top); }
  void PR_SetScale() override { m_hand.setScale(); }
  void PR_SetFont(const QString& family) override { m_hand.setFont(family); }
  void PR_SetFontSize(int size) override { m_hand.setFontSize(size); }
  void PR_Output(float x, float y, const QString& text) override;
  void PR_SetPen(int width) override { m_hand.setPen(width); }
  void PR_Line(float x1, float y1, float x2, float y2) override;
  void PR_EndPage() override;
  text::Done lastDocument() const override { return m_lastDocument; }

 private:
  Canvas* handPage();

  FontStore m_fonts;
  TextShaper m_shaper;
  PictureStore m_pictures;
  PagePainter m_painter;
  TemplateStore m_templates;
  OpenSink m_sinks;
  PrinterDialog m_dialog;
  PrinterChoice m_choice;
  std::unique_ptr<DocumentSink> m_sink;
  std::unique_ptr<PdfDocument> m_document;
  std::optional<LoadedForm> m_loaded;
  HandPage m_hand;
  QString m_loadFault;
  text::Done m_lastDocument;
};

}  // namespace report

#pragma once

#include <QString>

#include "platform/text/result.h"

namespace report {

/// Flags of every PR_StartDC.
inline constexpr int kStartFlags = 262144;
/// A PR_StartDC result above this is a failure.
inline constexpr int kStartFailureAbove = 10;
inline constexpr int kShown = -1;
inline constexpr int kHidden = 0;

/// The report engine's operations under the engine's names. Exactly one template is loaded at a time.
/// Nothing here ever shows a message; naming an item that the template lacks does no harm.
class ReportOperations {
 public:
  virtual ~ReportOperations() = default;

  virtual qint64 PR_GetPrinterDC() = 0;
  virtual int PR_StartDC(quintptr window, qint64 device, const QString& title, int flags) = 0;
  /// 0 is success. Bare file name, e.g. "HARI_900.PRP", found in the program folder.
  virtual int PR_LoadReport(int a, int b, const QString& fileName) = 0;
  virtual void PR_RepSetText(const QString& item, const QString& text) = 0;
  virtual void PR_RepSetVisible(const QString& item, int flag) = 0;
  virtual void PR_RepSetTextAlign(const QString& item, int align) = 0;
  virtual void PR_PlayReport() = 0;
  virtual void PR_EndDoc() = 0;
  virtual void PR_AbortDoc() = 0;
  virtual void PR_PrinterSetupDlg(quintptr window) = 0;

  // Drawing by hand, used by one list only.
  virtual void PR_SetMargin(int left, int top) = 0;
  virtual void PR_SetScale() = 0;
  virtual void PR_SetFont(const QString& family) = 0;
  virtual void PR_SetFontSize(int size) = 0;
  virtual void PR_Output(float x, float y, const QString& text) = 0;
  virtual void PR_SetPen(int width) = 0;
  virtual void PR_Line(float x1, float y1, float x2, float y2) = 0;
  virtual void PR_EndPage() = 0;

  /// Not one of the engine's operations, which answer nothing here: what became of the document that the last
  /// PR_EndDoc ended. A fault, in words for the user, where the printer did not take it.
  [[nodiscard]] virtual text::Done lastDocument() const = 0;
};

}  // namespace report

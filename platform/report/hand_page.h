#pragma once

#include "platform/report/canvas.h"
#include "platform/report/printer_choice.h"

namespace report {

/// State of the drawing by hand. Margins, type sizes and pens are tenths of a millimetre, places are
/// millimetres from the margins (above the upper margin they are negative).
class HandPage {
 public:
  void setMargin(int left, int top) { m_left = left / 10.0, m_top = top / 10.0; }
  /// The margins become the origin.
  void setScale() { m_originX = m_left, m_originY = m_top; }
  void setFont(const QString& family);
  void setFontSize(int size) { m_size = size / 10.0; }
  void setPen(int width) { m_pen = width / 10.0; }
  /// x, y: the upper left corner of the text.
  void output(Canvas& canvas, TextShaper& shaper, double x, double y, const QString& text) const;
  void line(Canvas& canvas, double x1, double y1, double x2, double y2) const;

 private:
  double m_left = 0;
  double m_top = 0;
  double m_originX = 0;
  double m_originY = 0;
  double m_size = 5;
  double m_pen = 0.1;
  Typeface m_face = Typeface::Mincho;
};

/// The paper of a page without a template: the chosen one, A4 at first, turned if landscape is chosen.
Paper chosenPaper(const PrinterChoice& choice);

}  // namespace report

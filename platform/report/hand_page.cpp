#include "platform/report/hand_page.h"

namespace report {

namespace {

constexpr double kAscent = 0.88;  // of the forms' fonts, in em

}  // namespace

void HandPage::setFont(const QString& family) {
  const bool gothic =
      family.contains(QStringLiteral("ゴシック")) || family.contains(QStringLiteral("Gothic"));
  m_face = gothic ? Typeface::Gothic : Typeface::Mincho;
}

void HandPage::output(Canvas& canvas, TextShaper& shaper, double x, double y, const QString& text) const {
  const double left = (m_originX + x) * kPointsPerMm;
  const double baseline = (m_originY + y + kAscent * m_size) * kPointsPerMm;
  for (const Run& run : shaper.shape(m_face, text)->runs)
    canvas.text(run, left, baseline, m_size * kPointsPerMm);
}

void HandPage::line(Canvas& canvas, double x1, double y1, double x2, double y2) const {
  canvas.moveTo((m_originX + x1) * kPointsPerMm, (m_originY + y1) * kPointsPerMm);
  canvas.lineTo((m_originX + x2) * kPointsPerMm, (m_originY + y2) * kPointsPerMm);
  canvas.stroke(m_pen * kPointsPerMm);
}

Paper chosenPaper(const PrinterChoice& choice) {
  Paper chosen = *findPaper(QStringLiteral("A4"));
  for (const Paper& paper : papers())
    if (paper.media == choice.media) chosen = paper;
  if (choice.orientation == Orientation::Landscape) std::swap(chosen.w, chosen.h);
  return chosen;
}

}  // namespace report

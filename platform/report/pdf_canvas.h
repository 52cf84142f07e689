#pragma once

#include <map>
#include <memory>
#include <set>

#include "platform/report/canvas.h"

namespace report {

/// Our glyph numbers by font.
using GlyphSet = std::map<Font*, std::set<unsigned>>;

/// Appends a number in the fewest letters, to a hundredth.
void appendNumber(QByteArray& bytes, double value);
/// UTF-16 with its mark, in hexadecimal digits, as PDF wants its texts.
QByteArray pdfText(const QString& text);

/// The content of a page in the language of PDF. Glyphs of the frame's fonts are taken from there, all
/// others are noted for the document's own fonts: resources /F and /D with the number of the font.
class PdfCanvas final : public Canvas {
 public:
  PdfCanvas(double height, const GlyphSet* frameGlyphs) : m_height(height), m_frameGlyphs(frameGlyphs) {}

  void text(const Run& run, double x, double y, double pt) override;
  void moveTo(double x, double y) override;
  void lineTo(double x, double y) override;
  void ellipse(double cx, double cy, double rx, double ry) override;
  void stroke(double width) override;
  void picture(cairo_surface_t* image, double x, double y, double w, double h) override;
  void openParagraph(int number) override;
  void closeParagraph() override;

  /// Nothing more can be drawn afterwards.
  QByteArray finish();

  const GlyphSet& ownGlyphs() const { return m_ownGlyphs; }
  const std::vector<int>& paragraphs() const { return m_paragraphs; }
  /// In the order of their resources /I0, /I1, ...
  const std::vector<cairo_surface_t*>& pictures() const { return m_pictures; }

 private:
  bool fromFrame(Font* font, unsigned number);
  void setFont(char kind, const Run& run, double pt);
  void goTo(double x, double y);
  void openText();
  void closeText();
  void closeString();
  void point(double x, double y, const char* command);

  double m_height;
  const GlyphSet* m_frameGlyphs;
  GlyphSet m_ownGlyphs;
  std::vector<int> m_paragraphs;
  std::vector<cairo_surface_t*> m_pictures;
  QByteArray m_out;
  bool m_inText = false;
  bool m_inString = false;
  double m_penX = 0;  // position of the next glyph, from the upper left corner
  double m_penY = 0;
  double m_lineX = 0;  // start of the line, from which the next one is measured
  double m_lineY = 0;
  char m_kind = 0;
  Font* m_font = nullptr;
  double m_pt = 0;
  double m_width = -1;
};

}  // namespace report

#include "platform/report/pdf_canvas.h"

#include <cmath>

namespace report {

namespace {

// Coordinates are written to a tenth of a point, less than a printer's dot: short numbers make small files.
double shortened(double place) { return std::round(place * 10) / 10; }

}  // namespace

void appendNumber(QByteArray& bytes, double value) {
  const long hundredths = std::lround(value * 100);
  const long size = std::labs(hundredths);
  if (hundredths < 0) bytes += '-';
  if (size >= 100 || size == 0) bytes += QByteArray::number(qlonglong(size / 100));
  if (size % 100 == 0) return;
  bytes += '.';
  bytes += char('0' + size / 10 % 10);
  if (size % 10) bytes += char('0' + size % 10);
}

QByteArray pdfText(const QString& text) {
  QByteArray bytes("\xFE\xFF", 2);
  for (const QChar c : text) {
    bytes += char(c.unicode() >> 8);
    bytes += char(c.unicode());
  }
  return '<' + bytes.toHex() + '>';
}

bool PdfCanvas::fromFrame(Font* font, unsigned number) {
  if (m_frameGlyphs) {
    const auto glyphs = m_frameGlyphs->find(font);
    if (glyphs != m_frameGlyphs->end() && glyphs->second.contains(number)) return true;
  }
  m_ownGlyphs[font].insert(number);
  return false;
}

void PdfCanvas::text(const Run& run, double x, double y, double pt) {
  openText();
  auto span = run.spans.begin();
  for (size_t i = 0; i < run.glyphs.size(); ++i) {
    const PlacedGlyph& glyph = run.glyphs[i];
    const bool spanStarts = span != run.spans.end() && span->first == i;
    if (spanStarts) {
      closeString();
      m_out += "/Span<</ActualText" + pdfText(span->text) + ">>BDC\n";
    }
    setFont(fromFrame(run.font, glyph.number) ? 'F' : 'D', run, pt);
    goTo(x + glyph.x * pt, y + glyph.y * pt);
    if (!m_inString) m_out += '(', m_inString = true;
    for (const char c : {char(glyph.number >> 8), char(glyph.number)}) {
      if (c == '(' || c == ')' || c == '\\') m_out += '\\';
      if (c == '\r')
        m_out += "\\r";
      else
        m_out += c;
    }
    m_penX += run.font->advance(glyph.number) * pt;
    if (span != run.spans.end() && i + 1 == span->first + span->count) {
      closeString();
      m_out += "EMC\n";
      ++span;
    }
  }
  closeString();
}

void PdfCanvas::setFont(char kind, const Run& run, double pt) {
  if (kind == m_kind && run.font == m_font && pt == m_pt) return;
  closeString();
  m_out += '/';
  m_out += kind;
  m_out += QByteArray::number(run.font->id()) + ' ';
  appendNumber(m_out, pt);
  m_out += " Tf\n";
  m_kind = kind, m_font = run.font, m_pt = pt;
}

void PdfCanvas::goTo(double x, double y) {
  if (std::abs(x - m_penX) < 0.02 && std::abs(y - m_penY) < 0.02) return;
  closeString();
  const double toX = shortened(x), toY = shortened(y);
  appendNumber(m_out, toX - m_lineX);
  m_out += ' ';
  appendNumber(m_out, m_lineY - toY);
  m_out += " Td\n";
  m_lineX = toX, m_lineY = toY;
  m_penX = x, m_penY = y;
}

void PdfCanvas::openText() {
  if (m_inText) return;
  m_out += "BT\n";
  m_inText = true;
  // Text lines start from the lower left corner of the paper.
  m_lineX = 0, m_lineY = m_height;
  m_penX = m_penY = -1e6;
}

void PdfCanvas::closeText() {
  if (!m_inText) return;
  closeString();
  m_out += "ET\n";
  m_inText = false;
}

void PdfCanvas::closeString() {
  if (m_inString) m_out += ")Tj\n";
  m_inString = false;
}

void PdfCanvas::point(double x, double y, const char* command) {
  closeText();
  appendNumber(m_out, shortened(x));
  m_out += ' ';
  appendNumber(m_out, shortened(m_height - y));
  m_out += command;
}

void PdfCanvas::moveTo(double x, double y) { point(x, y, " m\n"); }
void PdfCanvas::lineTo(double x, double y) { point(x, y, " l\n"); }

void PdfCanvas::ellipse(double cx, double cy, double rx, double ry) {
  constexpr double k = 0.5523;  // a quarter of a circle as one curve
  const auto curve = [&](double ax, double ay, double bx, double by, double x, double y) {
    point(cx + ax * rx, cy + ay * ry, " ");
    point(cx + bx * rx, cy + by * ry, " ");
    point(cx + x * rx, cy + y * ry, " c\n");
  };
  moveTo(cx + rx, cy);
  curve(1, k, k, 1, 0, 1);
  curve(-k, 1, -1, k, -1, 0);
  curve(-1, -k, -k, -1, 0, -1);
  curve(k, -1, 1, -k, 1, 0);
}

void PdfCanvas::stroke(double width) {
  closeText();
  if (width != m_width) {
    appendNumber(m_out, width);
    m_out += " w\n";
  }
  m_width = width;
  m_out += "S\n";
}

void PdfCanvas::picture(cairo_surface_t* image, double x, double y, double w, double h) {
  closeText();
  const QByteArray name = "/I" + QByteArray::number(qlonglong(m_pictures.size()));
  m_pictures.push_back(image);
  m_out += "q ";
  for (const double value : {w, 0.0, 0.0, h, x, m_height - y - h}) {
    appendNumber(m_out, value);
    m_out += ' ';
  }
  m_out += "cm " + name + " Do Q\n";
}

void PdfCanvas::openParagraph(int number) {
  closeText();
  if (number == kArtifact) {
    m_out += "/Artifact BMC\n";
    return;
  }
  m_paragraphs.push_back(number);
  m_out += "/P<</MCID " + QByteArray::number(number) + ">>BDC\n";
}

void PdfCanvas::closeParagraph() {
  closeText();
  m_out += "EMC\n";
}

QByteArray PdfCanvas::finish() {
  closeText();
  return std::move(m_out);
}

}  // namespace report

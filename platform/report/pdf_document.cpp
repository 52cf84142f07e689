#include "platform/report/pdf_document.h"

#include "platform/report/pdf_packer.h"

#include <cairo-pdf.h>

namespace report {

namespace {

cairo_status_t append(void* bytes, const unsigned char* data, unsigned length) {
  static_cast<QByteArray*>(bytes)->append(reinterpret_cast<const char*>(data), qsizetype(length));
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace

PdfDocument::PdfDocument(const QString& title) {
  m_surface.reset(cairo_pdf_surface_create_for_stream(append, &m_bytes, 595, 842));
  cairo_pdf_surface_set_metadata(m_surface.get(), CAIRO_PDF_METADATA_TITLE, title.toUtf8().constData());
  m_page.reset(cairo_create(m_surface.get()));
}

PdfDocument::~PdfDocument() {
  m_page.reset();
  cairo_surface_finish(m_surface.get());
}

cairo_t* PdfDocument::beginPage(double width, double height) {
  if (m_pageOpen) endPage();
  cairo_pdf_surface_set_size(m_surface.get(), width * kPointsPerMm, height * kPointsPerMm);
  m_pageOpen = true;
  return m_page.get();
}

void PdfDocument::endPage() {
  if (!m_pageOpen) return;
  cairo_show_page(m_page.get());
  m_pageOpen = false;
  ++m_pages;
}

QByteArray PdfDocument::finish() {
  endPage();
  const bool sound = cairo_status(m_page.get()) == CAIRO_STATUS_SUCCESS;
  m_page.reset();
  cairo_surface_finish(m_surface.get());
  if (!sound || cairo_surface_status(m_surface.get()) != CAIRO_STATUS_SUCCESS) return {};
  return packPdf(m_bytes);
}

}  // namespace report

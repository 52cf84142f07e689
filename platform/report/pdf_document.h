#pragma once

#include "platform/report/cairo_handles.h"

#include <QByteArray>
#include <QString>

namespace report {

/// A PDF document that grows page by page in memory.
class PdfDocument {
 public:
  explicit PdfDocument(const QString& title);
  ~PdfDocument();
  PdfDocument(const PdfDocument&) = delete;
  PdfDocument& operator=(const PdfDocument&) = delete;

  /// Starts a page of this size (mm); what is drawn until endPage() is on it, measured in points.
  cairo_t* beginPage(double width, double height);
  void endPage();
  bool pageOpen() const { return m_pageOpen; }
  /// The page that is open; nullptr if none is.
  cairo_t* page() const { return m_pageOpen ? m_page.get() : nullptr; }
  int pages() const { return m_pages; }
  /// The whole document; empty if it could not be made. Ends an open page.
  QByteArray finish();

 private:
  QByteArray m_bytes;
  Surface m_surface;
  Context m_page;
  bool m_pageOpen = false;
  int m_pages = 0;
};

}  // namespace report

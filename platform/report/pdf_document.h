#pragma once

#include <QDateTime>
#include <optional>

#include "platform/report/font_program.h"

namespace report {

/// A PDF document that grows page by page in memory. It is Japanese, tagged, and read block by block: the
/// captions of a block of the form, then what was filled in there.
class PdfDocument {
 public:
  PdfDocument(const QString& title, const QDateTime& made);

  /// Starts a page of this size (mm), on the frame if there is one. Paragraph b of the frame and paragraph
  /// frameParagraphs + b of the page are read together.
  Canvas& beginPage(double width, double height, std::shared_ptr<const FramePart> frame = {},
                    int frameParagraphs = 0);
  void endPage();
  /// The page that is open; nullptr if none is.
  Canvas* page() { return m_canvas ? &*m_canvas : nullptr; }
  int pages() const { return int(m_pages.size()); }
  /// The whole document. Ends an open page.
  QByteArray finish();

 private:
  int fontsOf(const FrameFonts* fonts);
  int frameContent(const std::shared_ptr<const FramePart>& frame);
  QByteArray pictureResources();
  int picture(cairo_surface_t* image);
  void addElements(int page);
  void writeFonts();
  void writeStructure();

  QString m_title;
  QDateTime m_made;
  PdfWriter m_writer;
  int m_catalog, m_pageTree, m_info, m_structure, m_root, m_parents;
  std::optional<PdfCanvas> m_canvas;
  std::shared_ptr<const FramePart> m_frame;
  int m_frameParagraphs = 0;
  QByteArray m_mediaBox;
  GlyphSet m_ownGlyphs;
  std::vector<int> m_pages;
  std::vector<int> m_elements;
  std::vector<QByteArray> m_parentRows;  // by page: the element of each paragraph
  std::map<const FrameFonts*, int> m_fontResources;
  std::map<std::shared_ptr<const FramePart>, int> m_frames;
  std::map<cairo_surface_t*, int> m_pictures;
};

}  // namespace report

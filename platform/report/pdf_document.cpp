#include "platform/report/pdf_document.h"

#include <algorithm>

namespace report {

PdfDocument::PdfDocument(const QString& title, const QDateTime& made)
    : m_title(title),
      m_made(made),
      m_catalog(m_writer.reserve()),
      m_pageTree(m_writer.reserve()),
      m_info(m_writer.reserve()),
      m_structure(m_writer.reserve()),
      m_root(m_writer.reserve()),
      m_parents(m_writer.reserve()) {}

Canvas& PdfDocument::beginPage(double width, double height, std::shared_ptr<const FramePart> frame,
                               int frameParagraphs) {
  endPage();
  m_frame = std::move(frame);
  m_frameParagraphs = frameParagraphs;
  m_mediaBox = "[0 0 ";
  appendNumber(m_mediaBox, width * kPointsPerMm);
  m_mediaBox += ' ';
  appendNumber(m_mediaBox, height * kPointsPerMm);
  m_mediaBox += ']';
  m_canvas.emplace(height * kPointsPerMm, m_frame ? &m_frame->fonts->glyphs : nullptr);
  return *m_canvas;
}

void PdfDocument::endPage() {
  if (!m_canvas) return;
  QByteArray contents = m_frame ? reference(frameContent(m_frame)) + ' ' : QByteArray();
  contents += reference(m_writer.stream(PackedStream::of(m_canvas->finish())));
  for (const auto& [font, numbers] : m_canvas->ownGlyphs())
    m_ownGlyphs[font].insert(numbers.begin(), numbers.end());
  const int page = m_writer.reserve();
  const QByteArray fonts = reference(fontsOf(m_frame ? m_frame->fonts.get() : nullptr));
  m_writer.put(page, "<</Type/Page/Parent " + reference(m_pageTree) + "/MediaBox" + m_mediaBox +
                         "/Contents[" + contents + "]/Resources<</Font " + fonts + pictureResources() +
                         ">>/StructParents " + QByteArray::number(pages()) + "/Tabs/S>>");
  addElements(page);
  m_pages.push_back(page);
  m_canvas.reset();
}

int PdfDocument::fontsOf(const FrameFonts* fonts) {
  int& number = m_fontResources[fonts];
  if (!number) number = m_writer.reserve();
  return number;
}

int PdfDocument::frameContent(const std::shared_ptr<const FramePart>& frame) {
  int& number = m_frames[frame];
  if (!number) {
    number = m_writer.stream(frame->content);
    for (const auto& [font, numbers] : frame->ownGlyphs)
      m_ownGlyphs[font].insert(numbers.begin(), numbers.end());
  }
  return number;
}

QByteArray PdfDocument::pictureResources() {
  if (m_canvas->pictures().empty()) return {};
  QByteArray resources = "/XObject<<";
  for (size_t i = 0; i < m_canvas->pictures().size(); ++i)
    resources += "/I" + QByteArray::number(qlonglong(i)) + ' ' + reference(picture(m_canvas->pictures()[i]));
  return resources + ">>";
}

int PdfDocument::picture(cairo_surface_t* image) {
  int& number = m_pictures[image];
  if (number) return number;
  const int width = cairo_image_surface_get_width(image), height = cairo_image_surface_get_height(image);
  const int stride = cairo_image_surface_get_stride(image);
  cairo_surface_flush(image);
  QByteArray points;
  points.reserve(qsizetype(width) * height * 3);
  for (int y = 0; y < height; ++y) {
    const auto* row =
        reinterpret_cast<const quint32*>(cairo_image_surface_get_data(image) + qsizetype(stride) * y);
    for (int x = 0; x < width; ++x)
      for (const int shift : {16, 8, 0}) points += char(row[x] >> shift);
  }
  return number = m_writer.stream(PackedStream::of(
             points, "/Type/XObject/Subtype/Image/ColorSpace/DeviceRGB/BitsPerComponent 8/Width " +
                         QByteArray::number(width) + "/Height " + QByteArray::number(height)));
}

// One element of the structure for each block: the frame's paragraph of it, then the page's own.
void PdfDocument::addElements(int page) {
  std::map<int, QByteArray> blocks;  // by block: the paragraphs
  int last = -1;
  const auto note = [&](int block, int paragraph) {
    blocks[block] += QByteArray::number(paragraph) + ' ';
    last = std::max(last, paragraph);
  };
  if (m_frame)
    for (const int paragraph : m_frame->paragraphs) note(paragraph, paragraph);
  for (const int paragraph : m_canvas->paragraphs()) note(paragraph - m_frameParagraphs, paragraph);
  std::vector<QByteArray> parents(size_t(last + 1), "null");
  for (const auto& [block, paragraphs] : blocks) {
    const int element = m_writer.add("<</Type/StructElem/S/P/P " + reference(m_root) + "/Pg " +
                                     reference(page) + "/K[" + paragraphs.trimmed() + "]>>");
    m_elements.push_back(element);
    for (const QByteArray& paragraph : paragraphs.trimmed().split(' '))
      parents[size_t(paragraph.toInt())] = reference(element);
  }
  QByteArray row = "[";
  for (const QByteArray& parent : parents) row += parent + ' ';
  m_parentRows.push_back(row + ']');
}

void PdfDocument::writeFonts() {
  QByteArray own;
  for (const auto& [font, numbers] : m_ownGlyphs)
    own +=
        "/D" + QByteArray::number(font->id()) + ' ' + reference(makeProgram(*font, numbers).write(m_writer));
  for (const auto& [fonts, number] : m_fontResources) {
    QByteArray dictionary = "<<" + own;
    if (fonts)
      for (const auto& [font, program] : fonts->programs)
        dictionary += "/F" + QByteArray::number(font->id()) + ' ' + reference(program.write(m_writer));
    m_writer.put(number, dictionary + ">>");
  }
}

void PdfDocument::writeStructure() {
  QByteArray elements, parents;
  for (const int element : m_elements) elements += reference(element) + ' ';
  for (size_t i = 0; i < m_parentRows.size(); ++i)
    parents += QByteArray::number(qlonglong(i)) + m_parentRows[i];
  m_writer.put(m_structure, "<</Type/StructTreeRoot/K " + reference(m_root) + "/ParentTree " +
                                reference(m_parents) + ">>");
  m_writer.put(m_root,
               "<</Type/StructElem/S/Document/P " + reference(m_structure) + "/K[" + elements + "]>>");
  m_writer.put(m_parents, "<</Nums[" + parents + "]>>");
}

QByteArray PdfDocument::finish() {
  endPage();
  writeFonts();
  writeStructure();
  QByteArray kids;
  for (const int page : m_pages) kids += reference(page) + ' ';
  m_writer.put(m_pageTree, "<</Type/Pages/Count " + QByteArray::number(pages()) + "/Kids[" + kids + "]>>");
  m_writer.put(m_catalog, "<</Type/Catalog/Pages " + reference(m_pageTree) +
                              "/Lang(ja-JP)/MarkInfo<</Marked true>>" +
                              "/ViewerPreferences<</DisplayDocTitle true>>/StructTreeRoot " +
                              reference(m_structure) + ">>");
  const QByteArray now = m_made.toUTC().toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1();
  m_writer.put(m_info, "<</Title " + pdfText(m_title) + "/Producer " + pdfText(QStringLiteral("治療台帳")) +
                           "/CreationDate(D:" + now + "Z)>>");
  return m_writer.finish(m_catalog, m_info);
}

}  // namespace report

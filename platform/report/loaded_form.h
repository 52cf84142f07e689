#pragma once

#include "platform/report/font_program.h"
#include "platform/report/page_painter.h"

namespace report {

class PdfDocument;

/// A template with its printed frame: labels, boxes and lines. The frame is made once for every state of
/// its items that occurs (as stored, all hidden for preprinted paper, a label replaced); pages and
/// documents share it.
class FrameStore {
 public:
  explicit FrameStore(FormPtr form);

  const FormPtr& form() const { return m_form; }
  int blocks() const { return int(m_data.size()); }
  /// Positions of the frame's items and of the data items of each block, in reading order.
  const std::vector<std::vector<int>>& frame() const { return m_frame; }
  const std::vector<std::vector<int>>& data() const { return m_data; }
  /// nullptr if nothing of the frame is shown.
  std::shared_ptr<const FramePart> part(const std::vector<ItemState>& states, bool asStored,
                                        PagePainter& painter);

 private:
  QByteArray signature(const std::vector<ItemState>& states) const;
  std::shared_ptr<const FrameFonts> fonts(PagePainter& painter);

  FormPtr m_form;
  std::vector<std::vector<int>> m_frame;
  std::vector<std::vector<int>> m_data;
  std::shared_ptr<const FrameFonts> m_fonts;
  std::map<QByteArray, std::shared_ptr<const FramePart>> m_parts;
};

/// The template that is loaded now, and what the program has set since.
class LoadedForm {
 public:
  explicit LoadedForm(std::shared_ptr<FrameStore> frames);

  const Form& form() const { return *m_frames->form(); }
  const std::vector<ItemState>& states() const { return m_states; }
  /// The item's state, to be changed; nullptr if the template has no such item.
  ItemState* change(const QString& item);
  /// Adds the page to the document.
  void play(PdfDocument& document, PagePainter& painter);
  /// Draws frame and data on a canvas of their own.
  void paint(Canvas& canvas, PagePainter& painter) const;

 private:
  void paintData(Canvas& canvas, PagePainter& painter) const;

  std::shared_ptr<FrameStore> m_frames;
  std::vector<ItemState> m_states;
  bool m_frameTouched = false;
};

}  // namespace report

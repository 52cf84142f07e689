#pragma once

#include "platform/report/page_painter.h"

#include <map>

namespace report {

/// A template with its printed frame: labels, boxes and lines. The frame is recorded once for every state
/// of its items that occurs (as stored, all hidden for preprinted paper, a label replaced); pages refer to
/// a record instead of repeating it.
class FrameStore {
 public:
  explicit FrameStore(FormPtr form);

  const FormPtr& form() const { return m_form; }
  /// Positions of the data items of each block, in reading order.
  const std::vector<std::vector<int>>& dataBlocks() const { return m_data; }
  /// nullptr if nothing of the frame is shown.
  cairo_surface_t* record(const std::vector<ItemState>& states, bool asStored, PagePainter& painter);

 private:
  QByteArray signature(const std::vector<ItemState>& states) const;
  Surface paint(const std::vector<ItemState>& states, PagePainter& painter) const;

  FormPtr m_form;
  std::vector<int> m_frame;
  std::vector<std::vector<int>> m_data;
  std::map<QByteArray, Surface> m_records;
};

/// The template that is loaded now, and what the program has set since.
class LoadedForm {
 public:
  explicit LoadedForm(std::shared_ptr<FrameStore> frames);

  const Form& form() const { return *m_frames->form(); }
  const std::vector<ItemState>& states() const { return m_states; }
  /// The item's state, to be changed; nullptr if the template has no such item.
  ItemState* change(const QString& item);
  /// Draws the page. On tagged pages each block of data is a paragraph, in the order of the form.
  void paint(cairo_t* page, PagePainter& painter, bool tagged);

 private:
  std::shared_ptr<FrameStore> m_frames;
  std::vector<ItemState> m_states;
  bool m_frameTouched = false;
};

}  // namespace report

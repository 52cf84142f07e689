#pragma once

#include "platform/report/page_painter.h"

#include <map>

namespace report {

/// The printed frame of a template, block by block, recorded once for every state of its items that
/// occurs (as stored, all hidden for preprinted paper, a label replaced). Pages refer to a record
/// instead of repeating it.
class FrameStore {
 public:
  explicit FrameStore(FormPtr form);

  const FormPtr& form() const { return m_form; }
  /// Positions of the frame's items and of the data items of a block, in reading order.
  const std::vector<int>& frameItems(int block) const { return m_frame[size_t(block)]; }
  const std::vector<int>& dataItems(int block) const { return m_data[size_t(block)]; }
  int blocks() const { return int(m_frame.size()); }
  /// The record of the block in these states; nullptr if nothing of it is shown.
  cairo_surface_t* record(int block, const std::vector<ItemState>& states, bool asStored, PagePainter& painter);

 private:
  QByteArray signature(int block, const std::vector<ItemState>& states) const;

  FormPtr m_form;
  std::vector<std::vector<int>> m_frame;
  std::vector<std::vector<int>> m_data;
  std::map<std::pair<int, QByteArray>, Surface> m_records;
};

/// The template that is loaded now: what the program has set since.
class LoadedForm {
 public:
  explicit LoadedForm(std::shared_ptr<FrameStore> frames);

  const Form& form() const { return *m_frames->form(); }
  const std::vector<ItemState>& states() const { return m_states; }
  /// The item's state, to be changed; nullptr if the template has no such item.
  ItemState* change(const QString& item);
  /// Draws the page. Tagged pages are read block by block: the captions of a block, then its data.
  void paint(cairo_t* page, PagePainter& painter, bool tagged);

 private:
  std::shared_ptr<FrameStore> m_frames;
  std::vector<ItemState> m_states;
  std::vector<bool> m_frameTouched;  // by block
};

}  // namespace report

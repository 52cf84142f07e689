#include "platform/report/loaded_form.h"

#include "platform/report/rule_merger.h"

#include <algorithm>

namespace report {

namespace {

constexpr size_t kMostRecords = 64;  // of one template; labels with data in them could make any number

bool isFrame(const Item& item) { return item.kind == Kind::Label || item.kind == Kind::Box || item.kind == Kind::Line; }

}  // namespace

FrameStore::FrameStore(FormPtr form) : m_form(std::move(form)) {
  m_data.resize(size_t(std::max<qsizetype>(m_form->blocks.size(), 1)));
  for (int i = 0; i < int(m_form->items.size()); ++i) {
    const Item& item = m_form->items[size_t(i)];
    (isFrame(item) ? m_frame : m_data[size_t(item.block)]).push_back(i);
  }
}

cairo_surface_t* FrameStore::record(const std::vector<ItemState>& states, bool asStored, PagePainter& painter) {
  const QByteArray key = asStored ? QByteArray() : signature(states);
  if (const auto known = m_records.find(key); known != m_records.end()) return known->second.get();
  if (m_records.size() >= kMostRecords) m_records.clear();
  return (m_records[key] = paint(states, painter)).get();
}

Surface FrameStore::paint(const std::vector<ItemState>& states, PagePainter& painter) const {
  const auto shown = [&](int i) { return states[size_t(i)].shown; };
  if (std::none_of(m_frame.begin(), m_frame.end(), shown)) return nullptr;
  const cairo_rectangle_t extents{0, 0, m_form->width() * kPointsPerMm, m_form->height() * kPointsPerMm};
  Surface record(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extents));
  Context page(cairo_create(record.get()));
  RuleMerger rules;
  for (const int i : m_frame) {
    const Item& item = m_form->items[size_t(i)];
    if (!shown(i)) continue;
    if (item.kind == Kind::Box) rules.addBox(item.rect, item.rule);
    else if (item.kind == Kind::Line) rules.addLine(item.rect, item.rule);
    else painter.paint(page.get(), item, states[size_t(i)]);
  }
  rules.draw(page.get());
  return record;
}

QByteArray FrameStore::signature(const std::vector<ItemState>& states) const {
  QByteArray sum = "*";
  for (const int i : m_frame) {
    const ItemState& state = states[size_t(i)];
    sum += char('0' + int(state.shown) * 4 + int(state.align));
    if (state.shown && state.text != m_form->items[size_t(i)].text) sum += state.text.toUtf8() + '\n';
  }
  return sum;
}

LoadedForm::LoadedForm(std::shared_ptr<FrameStore> frames) : m_frames(std::move(frames)) {
  m_states.reserve(form().items.size());
  for (const Item& item : form().items) m_states.push_back({!item.hidden, item.align, item.text});
}

ItemState* LoadedForm::change(const QString& item) {
  const int at = form().find(item);
  if (at < 0) return nullptr;
  if (isFrame(form().items[size_t(at)])) m_frameTouched = true;
  return &m_states[size_t(at)];
}

void LoadedForm::paint(cairo_t* page, PagePainter& painter, bool tagged) {
  cairo_set_source_rgb(page, 0, 0, 0);
  // The frame stays outside the tags: the page library gets its nesting wrong when a record is painted
  // inside one.
  if (cairo_surface_t* frame = m_frames->record(m_states, !m_frameTouched, painter)) {
    cairo_set_source_surface(page, frame, 0, 0);
    cairo_paint(page);
    cairo_set_source_rgb(page, 0, 0, 0);
  }
  const auto shown = [&](int i) { return m_states[size_t(i)].shown; };
  for (const std::vector<int>& block : m_frames->dataBlocks()) {
    if (std::none_of(block.begin(), block.end(), shown)) continue;
    if (tagged) cairo_tag_begin(page, "P", nullptr);
    for (const int i : block) painter.paint(page, form().items[size_t(i)], m_states[size_t(i)]);
    if (tagged) cairo_tag_end(page, "P");
  }
}

}  // namespace report

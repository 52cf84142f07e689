#include "platform/report/loaded_form.h"

namespace report {

namespace {

bool isFrame(const Item& item) { return item.kind == Kind::Label || item.kind == Kind::Box || item.kind == Kind::Line; }

}  // namespace

FrameStore::FrameStore(FormPtr form) : m_form(std::move(form)) {
  const size_t blocks = size_t(std::max<qsizetype>(m_form->blocks.size(), 1));
  m_frame.resize(blocks);
  m_data.resize(blocks);
  for (int i = 0; i < int(m_form->items.size()); ++i) {
    const Item& item = m_form->items[size_t(i)];
    (isFrame(item) ? m_frame : m_data)[size_t(item.block)].push_back(i);
  }
}

cairo_surface_t* FrameStore::record(int block, const std::vector<ItemState>& states, bool asStored, PagePainter& painter) {
  const auto key = std::pair(block, asStored ? QByteArray() : signature(block, states));
  if (const auto known = m_records.find(key); known != m_records.end()) return known->second.get();
  Surface& record = m_records[key];
  const auto shown = [&](int i) { return states[size_t(i)].shown; };
  const std::vector<int>& items = frameItems(block);
  if (std::none_of(items.begin(), items.end(), shown)) return nullptr;
  const cairo_rectangle_t extents{0, 0, m_form->width() * kPointsPerMm, m_form->height() * kPointsPerMm};
  record.reset(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extents));
  Context page(cairo_create(record.get()));
  for (const int i : items) painter.paint(page.get(), m_form->items[size_t(i)], states[size_t(i)]);
  return record.get();
}

QByteArray FrameStore::signature(int block, const std::vector<ItemState>& states) const {
  QByteArray sum = "*";
  for (const int i : frameItems(block)) {
    const ItemState& state = states[size_t(i)];
    sum += char('0' + int(state.shown) * 4 + int(state.align));
    if (state.shown && state.text != m_form->items[size_t(i)].text) sum += state.text.toUtf8() + '\n';
  }
  return sum;
}

LoadedForm::LoadedForm(std::shared_ptr<FrameStore> frames)
    : m_frames(std::move(frames)), m_frameTouched(size_t(m_frames->blocks()), false) {
  m_states.reserve(form().items.size());
  for (const Item& item : form().items) m_states.push_back({!item.hidden, item.align, item.text});
}

ItemState* LoadedForm::change(const QString& item) {
  const int at = form().find(item);
  if (at < 0) return nullptr;
  const Item& stored = form().items[size_t(at)];
  if (isFrame(stored)) m_frameTouched[size_t(stored.block)] = true;
  return &m_states[size_t(at)];
}

void LoadedForm::paint(cairo_t* page, PagePainter& painter, bool tagged) {
  for (int block = 0; block < m_frames->blocks(); ++block) {
    // The frame stays outside the tag: the page library gets its nesting wrong when a record is painted
    // inside one.
    if (cairo_surface_t* frame = m_frames->record(block, m_states, !m_frameTouched[size_t(block)], painter)) {
      cairo_set_source_surface(page, frame, 0, 0);
      cairo_paint(page);
      cairo_set_source_rgb(page, 0, 0, 0);
    }
    const std::vector<int>& data = m_frames->dataItems(block);
    const auto shown = [&](int i) { return m_states[size_t(i)].shown; };
    if (std::none_of(data.begin(), data.end(), shown)) continue;
    if (tagged) cairo_tag_begin(page, "P", nullptr);
    for (const int i : data) painter.paint(page, form().items[size_t(i)], m_states[size_t(i)]);
    if (tagged) cairo_tag_end(page, "P");
  }
}

}  // namespace report

#include "platform/report/loaded_form.h"

#include <algorithm>

#include "platform/report/pdf_document.h"
#include "platform/report/rule_merger.h"

namespace report {

namespace {

constexpr size_t kMaxParts = 64;  // of one template; labels with data in them could make any number

bool isFrame(const Item& item) {
  return item.kind == Kind::Label || item.kind == Kind::Box || item.kind == Kind::Line;
}

bool anyShown(const std::vector<int>& items, const std::vector<ItemState>& states) {
  return std::any_of(items.begin(), items.end(), [&](int i) { return states[size_t(i)].shown; });
}

std::vector<ItemState> storedStates(const Form& form) {
  std::vector<ItemState> states;
  states.reserve(form.items.size());
  for (const Item& item : form.items) states.push_back({!item.hidden, item.align, item.text});
  return states;
}

void paintFrame(Canvas& canvas, const FrameStore& frames, const std::vector<ItemState>& states,
                PagePainter& painter) {
  RuleMerger rules;
  for (int block = 0; block < frames.blocks(); ++block) {
    const std::vector<int>& items = frames.frame()[size_t(block)];
    if (!anyShown(items, states)) continue;
    canvas.openParagraph(block);
    for (const int i : items) {
      const Item& item = frames.form()->items[size_t(i)];
      painter.paint(canvas, item, states[size_t(i)]);
      if (states[size_t(i)].shown && item.kind == Kind::Box) rules.addBox(item.rect, item.rule);
      if (states[size_t(i)].shown && item.kind == Kind::Line) rules.addLine(item.rect, item.rule);
    }
    canvas.closeParagraph();
  }
  canvas.openParagraph(kArtifact);
  rules.draw(canvas);
  canvas.closeParagraph();
}

}  // namespace

FrameStore::FrameStore(FormPtr form) : m_form(std::move(form)) {
  m_frame.resize(size_t(std::max<qsizetype>(m_form->blocks.size(), 1)));
  m_data.resize(m_frame.size());
  for (int i = 0; i < int(m_form->items.size()); ++i) {
    const Item& item = m_form->items[size_t(i)];
    (isFrame(item) ? m_frame : m_data)[size_t(item.block)].push_back(i);
  }
}

std::shared_ptr<const FramePart> FrameStore::part(const std::vector<ItemState>& states, bool asStored,
                                                  PagePainter& painter) {
  const QByteArray key = asStored ? QByteArray() : signature(states);
  if (const auto known = m_parts.find(key); known != m_parts.end()) return known->second;
  if (m_parts.size() >= kMaxParts) m_parts.clear();
  std::shared_ptr<const FramePart>& made = m_parts[key];
  const bool any =
      std::any_of(m_frame.begin(), m_frame.end(), [&](const auto& items) { return anyShown(items, states); });
  if (!any) return made;
  auto part = std::make_shared<FramePart>();
  part->fonts = fonts(painter);
  PdfCanvas canvas(m_form->height() * kPointsPerMm, &part->fonts->glyphs);
  paintFrame(canvas, *this, states, painter);
  part->content = PackedStream::of(canvas.finish());
  part->paragraphs = canvas.paragraphs();
  part->ownGlyphs = canvas.ownGlyphs();
  return made = part;
}

std::shared_ptr<const FrameFonts> FrameStore::fonts(PagePainter& painter) {
  if (m_fonts) return m_fonts;
  painter.registerCaptionGlyphs(*m_form);
  const std::vector<ItemState> states = storedStates(*m_form);
  PdfCanvas canvas(m_form->height() * kPointsPerMm, nullptr);
  paintFrame(canvas, *this, states, painter);
  auto fonts = std::make_shared<FrameFonts>();
  fonts->glyphs = canvas.ownGlyphs();
  for (const auto& [font, numbers] : fonts->glyphs) fonts->programs[font] = makeProgram(*font, numbers);
  return m_fonts = fonts;
}

QByteArray FrameStore::signature(const std::vector<ItemState>& states) const {
  QByteArray sum = "*";
  for (const std::vector<int>& block : m_frame)
    for (const int i : block) {
      const ItemState& state = states[size_t(i)];
      sum += char('0' + int(state.shown) * 4 + int(state.align));
      if (state.shown && state.text != m_form->items[size_t(i)].text) sum += state.text.toUtf8() + '\n';
    }
  return sum;
}

LoadedForm::LoadedForm(std::shared_ptr<FrameStore> frames)
    : m_frames(std::move(frames)), m_states(storedStates(*m_frames->form())) {}

ItemState* LoadedForm::change(const QString& item) {
  const int at = form().find(item);
  if (at < 0) return nullptr;
  if (isFrame(form().items[size_t(at)])) m_frameTouched = true;
  return &m_states[size_t(at)];
}

void LoadedForm::play(PdfDocument& document, PagePainter& painter) {
  const auto frame = m_frames->part(m_states, !m_frameTouched, painter);
  paintData(document.beginPage(form().width(), form().height(), frame, m_frames->blocks()), painter);
  document.endPage();
}

void LoadedForm::paint(Canvas& canvas, PagePainter& painter) const {
  paintFrame(canvas, *m_frames, m_states, painter);
  paintData(canvas, painter);
}

void LoadedForm::paintData(Canvas& canvas, PagePainter& painter) const {
  for (int block = 0; block < m_frames->blocks(); ++block) {
    const std::vector<int>& items = m_frames->data()[size_t(block)];
    if (!anyShown(items, m_states)) continue;
    canvas.openParagraph(m_frames->blocks() + block);
    for (const int i : items) painter.paint(canvas, form().items[size_t(i)], m_states[size_t(i)]);
    canvas.closeParagraph();
  }
}

}  // namespace report

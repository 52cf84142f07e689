#include "platform/screen/builder.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/builder_place.h"
#include "platform/screen/captions.h"
#include "platform/screen/control_frame.h"
#include "platform/screen/screen.h"
#include "platform/screen/screen_parts.h"
#include "platform/screen/scroll_pane.h"

namespace screen {

void Builder::Place::addField(QLabel* label, QWidget* field, bool wide) {
  if (row) {
    row->add(label);
    row->add(field);
  } else if (wide) {
    columns->addWideField(label, field);
  } else {
    columns->addField(label, field);
  }
}

void Builder::Place::addSingle(QWidget* widget) { row ? row->add(widget) : columns->addSingle(widget); }

void Builder::Place::addWide(QWidget* widget, bool grows) {
  row ? row->add(widget) : columns->addWide(widget, grows);
}

Builder::Builder(Screen& screen) : m_screen(screen) {}

Builder::~Builder() = default;

void Builder::build() {
  constexpr int kColumns = 2;
  auto* pane = new ScrollPane(&m_screen);
  auto* body = new QWidget;
  pane->setWidget(body);
  m_screen.setCentralWidget(pane);
  m_places.push_back(std::make_unique<Place>(Shelf(body, kColumns)));
  for (const Row& row : m_screen.m_declaration.rows)
    std::visit([this](const auto& each) { make(each); }, row);
  closeToBase();
  m_places.back()->close();
  tellApart();
  chainTabs();
  addKeys();
}

int Builder::sourceOf(const store::Table* table) const {
  const int source = m_screen.declaration().sources.numberOf(table);
  if (source == 0) qFatal("screen %s has no source of this table", qUtf8Printable(m_screen.objectName()));
  return source;
}

QWidget* Builder::host() const { return m_places.back()->host(); }

void Builder::open(std::unique_ptr<Place> place) {
  place->outerGroup = m_group;
  m_places.push_back(std::move(place));
}

void Builder::close() {
  if (m_places.size() <= 1) return;
  m_places.back()->close();
  m_group = m_places.back()->outerGroup;
  m_places.pop_back();
}

void Builder::closeToBase() {
  while (m_places.size() > 1) close();
  m_page.clear();
}

QLabel* Builder::makeLabel(Control& control) {
  auto* label = new QLabel(shownCaption(control.caption()), host());
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(control.focusWidgets().first());
  control.setLabel(label);
  return label;
}

void Builder::finish(Control& control, const Binding& binding, const char16_t* tip) {
  if (binding.bound()) control.bind(QString::fromUtf16(binding.column()), sourceOf(binding.table()));
  finish(control, tip);
}

void Builder::finish(Control& control, const char16_t* tip) {
  if (tip) control.setTip(QString::fromUtf16(tip));
  m_screen.m_parts->book.addWidgets(control);
  m_screen.m_parts->focus.watch(control);
  m_spots.push_back({&control, m_group, m_page});
}

void Builder::tellApart() {
  const auto names = [this] {
    QHash<QString, int> counts;
    for (const Spot& spot : m_spots) ++counts[spot.control->accessibleName()];
    return counts;
  };
  const auto prefixDoubles = [&](QString Spot::*word) {
    const QHash<QString, int> counts = names();
    for (const Spot& spot : m_spots)
      if (counts.value(spot.control->accessibleName()) > 1 && !(spot.*word).isEmpty())
        spot.control->setPrefix(accessibleCaption(spot.*word));
  };
  prefixDoubles(&Spot::group);
  prefixDoubles(&Spot::page);
  QHash<QString, int> seen;
  for (const Spot& spot : m_spots) {
    const int number = ++seen[spot.control->accessibleName()];
    if (number > 1) spot.control->setNumber(number);
  }
  nameParts();
}

// An option button carries its group's word only where its own caption is not enough.
void Builder::nameParts() {
  QHash<QString, int> taken;
  for (const Spot& spot : m_spots) {
    ++taken[spot.control->accessibleName()];
    for (const QString& caption : spot.control->partCaptions()) ++taken[caption];
  }
  QSet<QString> alone;
  for (auto name = taken.cbegin(); name != taken.cend(); ++name)
    if (name.value() == 1) alone.insert(name.key());
  for (const Spot& spot : m_spots) spot.control->namePartsAlone(alone);
}

void Builder::chainTabs() {
  QWidget* before = nullptr;
  for (const auto& control : m_screen.m_parts->book.all()) {
    for (QWidget* widget : control->focusWidgets()) {
      if (before) QWidget::setTabOrder(before, widget);
      before = widget;
    }
  }
}

void Builder::addKeys() {
  const auto key = [this](const QKeySequence& sequence, auto action) {
    auto* shortcut = new QShortcut(sequence, &m_screen);
    QObject::connect(shortcut, &QShortcut::activated, &m_screen, action);
  };
  if (TabsControl* tabs = m_screen.m_parts->book.tabs()) {
    key(QKeySequence(Qt::CTRL | Qt::Key_PageDown), [tabs] { tabs->step(+1); });
    key(QKeySequence(Qt::CTRL | Qt::Key_PageUp), [tabs] { tabs->step(-1); });
  }
  if (!m_screen.m_declaration.functionKeys) return;
  const std::pair<const char*, void (Screen::*)()> moves[] = {{"F1", &Screen::goFirst},
                                                              {"F2", &Screen::goPrevious},
                                                              {"F3", &Screen::goNext},
                                                              {"F4", &Screen::goLast}};
  for (const auto& [name, move] : moves) {
    if (m_keys.contains(QLatin1String(name))) continue;  // a command of the screen has the key
    key(QKeySequence(QLatin1String(name)),
        [this_screen = &m_screen, move = move] { (this_screen->*move)(); });
  }
}

}  // namespace screen

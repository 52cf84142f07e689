// The builder's one function a kind of row.
#include <QtWidgets/QtWidgets>

#include "platform/screen/builder.h"
#include "platform/screen/builder_place.h"
#include "platform/screen/captions.h"
#include "platform/screen/control_calendar.h"
#include "platform/screen/control_check.h"
#include "platform/screen/control_combo.h"
#include "platform/screen/control_command.h"
#include "platform/screen/control_frame.h"
#include "platform/screen/control_grid.h"
#include "platform/screen/control_options.h"
#include "platform/screen/control_tab_row.h"
#include "platform/screen/control_table.h"
#include "platform/screen/control_text.h"
#include "platform/screen/screen.h"
#include "platform/screen/screen_parts.h"

namespace screen {
namespace {

QString words(const Words& text) { return QString::fromUtf16(text.get()); }

}  // namespace

template <class T>
T& Builder::add(std::unique_ptr<T> control) {
  return m_screen.m_parts->book.add(std::move(control));
}

template <class Field>
void Builder::setHandlers(Control& control, const Field& row) {
  control.onEnter(row.onEnter);
  control.onLeave(row.onLeave);
  control.onEdit(row.onEdit);
}

void Builder::make(const TextField& row) {
  if (row.lines > 1) return makeMemo(row);
  auto& line = add(std::make_unique<LineControl>(m_screen, row.name, words(row.caption), 0, host()));
  line.setLook(row.limit, row.width, row.readOnly);
  setHandlers(line, row);
  line.say(row.say);
  m_places.back()->addField(makeLabel(line), line.widget(), false);
  finish(line, row.bind, row.tip);
}

void Builder::makeMemo(const TextField& row) {
  auto& memo = add(std::make_unique<MemoControl>(m_screen, row.name, words(row.caption), host()));
  memo.setLook(row.limit, row.width, row.lines, row.readOnly);
  setHandlers(memo, row);
  memo.say(row.say);
  m_places.back()->addField(makeLabel(memo), memo.widget(), true);
  finish(memo, row.bind, row.tip);
}

void Builder::make(const TextRun& row) {
  auto* box = new QWidget(host());
  Family family(box, row.perLine);
  for (int i = 0; i < row.count; ++i) {
    const QString caption = numbered(row.caption.get(), row.number + i);
    auto& line = add(std::make_unique<LineControl>(m_screen, row.name, caption, i, box));
    line.setLook(row.limit, row.width, row.readOnly);
    setHandlers(line, row);
    family.add(makeLabel(line), line.widget());
    if (row.bind.bound())
      line.bind(QString::fromUtf16(row.bind.column(row.number + i)), sourceOf(row.bind.table()));
    finish(line, row.tip);
  }
  m_places.back()->addWide(box, false);
}

void Builder::make(const Combo& row) {
  auto& combo = add(std::make_unique<ComboControl>(m_screen, row, host(), m_screen.voice()));
  setHandlers(combo, row);
  combo.say(row.say);
  m_places.back()->addField(makeLabel(combo), combo.widget(), false);
  finish(combo, row.bind, row.tip);
}

void Builder::make(const Check& row) {
  auto& check = add(std::make_unique<CheckControl>(m_screen, row, host()));
  check.onEdit(row.onToggle);
  m_places.back()->addSingle(check.widget());
  finish(check, row.bind, row.tip);
}

void Builder::make(const Options& row) {
  auto& options = add(std::make_unique<OptionsControl>(m_screen, row, host()));
  options.onEdit(row.onChoose);
  for (const Choice& choice : row.choices) m_screen.m_parts->book.addName(objectName(choice.name), options);
  m_places.back()->addWide(options.widget(), false);
  finish(options, row.bind, row.tip);
}

void Builder::make(const Command& row) {
  auto& command =
      add(std::make_unique<CommandControl>(m_screen, row.name, words(row.caption), row.run.handler()));
  command.makeButton(host());
  command.say(row.say);
  if (row.menu || row.under) {
    const QString name = row.menu ? QString::fromUtf16(row.menu) : command.name();
    addEntry(command, name, row.under, row.menuCaption);
  }
  if (row.key) addKey(command, row.key);
  if (row.standard) m_screen.m_parts->book.setStandard(command);
  m_places.back()->addSingle(command.widget());
  finish(command, row.tip);
}

void Builder::make(const Entry& row) {
  auto& command =
      add(std::make_unique<CommandControl>(m_screen, row.name, words(row.caption), row.run.handler()));
  addEntry(command, command.name(), row.under, nullptr);
  if (row.key) addKey(command, row.key);
}

void Builder::make(const Note& row) {
  auto& note = add(std::make_unique<NoteControl>(m_screen, row, host()));
  if (note.isLong())
    m_places.back()->addWide(note.widget(), false);
  else
    m_places.back()->addSingle(note.widget());
}

void Builder::make(const Page& row) {
  closeToBase();
  ControlBook& book = m_screen.m_parts->book;
  if (!book.tabs()) {
    auto& tabs = add(std::make_unique<TabsControl>(m_screen, host(), m_screen.voice()));
    book.setTabs(tabs);
    book.addWidgets(tabs);
    m_screen.m_parts->focus.watch(tabs);
    m_places.back()->addWide(tabs.widget(), true);
  }
  constexpr int kColumns = 2;
  open(std::make_unique<Place>(Shelf(book.tabs()->addPage(words(row.caption)), kColumns)));
  m_page = words(row.caption);
}

void Builder::make(const EndPages&) { closeToBase(); }

void Builder::make(const Group& row) {
  auto& group = add(std::make_unique<GroupControl>(m_screen, row, host()));
  if (row.columns == 1)
    m_places.back()->addSingle(group.widget());  // narrow groups are placed side by side
  else
    m_places.back()->addWide(group.widget(), false);
  open(std::make_unique<Place>(Shelf(group.widget(), row.columns)));
  m_group = group.caption();
}

void Builder::make(const EndGroup&) { close(); }

void Builder::make(const Bar&) {
  auto* box = new QWidget(host());
  m_places.back()->addWide(box, false);
  open(std::make_unique<Place>(Flow(box)));
}

void Builder::make(const EndBar&) { close(); }

void Builder::make(const Grid& row) {
  const int source = sourceOf(&row.columns[0].column.table());
  placeCells(add(std::make_unique<GridControl>(m_screen, row, source, host(), m_screen.voice())));
}

void Builder::make(const Table& row) {
  placeCells(add(std::make_unique<TableControl>(m_screen, row, host(), m_screen.voice())));
}

void Builder::make(const Calendar& row) {
  placeCells(add(std::make_unique<CalendarControl>(m_screen, row, host(), m_screen.voice())));
}

void Builder::make(const TabRow& row) {
  auto& tabs = add(std::make_unique<TabRowControl>(m_screen, row, host()));
  m_places.back()->addField(makeLabel(tabs), tabs.widget(), true);
  finish(tabs, nullptr);
}

void Builder::placeCells(Control& control) {
  m_places.back()->addWide(makeLabel(control), false);
  m_places.back()->addWide(control.widget(), true);
  finish(control, nullptr);
}

void Builder::addEntry(CommandControl& command, const QString& name, const char16_t* under,
                       const char16_t* caption) {
  QAction* action = menu(under)->addAction(QString());
  action->setObjectName(name);
  command.setAction(action, caption);
  m_screen.m_parts->book.addName(name, command);
}

QMenu* Builder::menu(const char16_t* caption) {
  const QString title = caption ? QString::fromUtf16(caption) : QStringLiteral("操作(&O)");
  QMenu*& menu = m_menus[title];
  if (menu) return menu;
  voice::VoiceGuide& voice = m_screen.voice();
  const auto speakEntry = [&voice](const QAction* entry) { voice.speakFocus(spokenCaption(entry->text())); };
  // The bar passes the entries of its menus on, which speak themselves.
  const auto speakTitle = [speakEntry](const QAction* entry) {
    if (entry->menu()) speakEntry(entry);
  };
  if (m_menus.size() == 1) QObject::connect(m_screen.menuBar(), &QMenuBar::hovered, &m_screen, speakTitle);
  menu = m_screen.menuBar()->addMenu(shownCaption(title));
  menu->setObjectName(title);
  QObject::connect(menu, &QMenu::hovered, &m_screen, speakEntry);
  return menu;
}

void Builder::addKey(CommandControl& command, const char16_t* key) {
  m_keys += QString::fromUtf16(key);
  command.setKey(m_keys.last());
}

}  // namespace screen

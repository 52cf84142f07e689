#include "tests/program/speech_transcript.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/control_book.h"
#include "platform/screen/control_cells.h"

namespace program {

using namespace Qt::StringLiterals;
using screen::Control;

namespace {

QString line(const QString& name, const QString& spoken) { return name + u'\t' + readableSpeech(spoken); }

QString choice(const QString& name, const QString& spoken) { return line(u"  "_s + name, spoken); }

QString heardInOneLine(const QStringList& heard) { return heard.join(u" + "); }

}  // namespace

QString readableSpeech(const QString& spoken) {
  QString text = spoken;
  return text.replace(u"\r\n"_s, u"\n"_s)
      .replace(voice::kSpeechSeparator, u" | "_s)
      .replace(u'\n', u" ⏎ "_s)
      .replace(u'\t', u' ');
}

QStringList SpeechTranscript::lines() {
  m_probe.open();
  QCoreApplication::processEvents();
  QStringList lines = opening();
  lines += stops();
  lines += menus();
  return lines;
}

QStringList SpeechTranscript::opening() {
  QStringList lines{line(u"[title]"_s, m_screen.windowTitle())};
  for (const QString& text : m_voice.heardWhole()) lines += line(u"[opens]"_s, text);
  lines += line(u"[focus]"_s, m_screen.focused());
  return lines;
}

// Tab leaves the control that has the focus at first and comes to it last: its lines go to the front.
QStringList SpeechTranscript::stops() {
  const QString first = m_screen.focused();
  QStringList front, rest;
  m_probe.walk([&](const Control& control, QWidget& focus, const QStringList& heard) {
    QStringList& lines = control.name() == first && front.isEmpty() ? front : rest;
    const QString spoken = heardInOneLine(heard);
    const QString name = focus.accessibleName();
    lines += line(control.name(), spoken) + (spoken.startsWith(name) ? QString() : u"\t= "_s + name);
    lines += choices(control, focus);
  });
  return front + rest;
}

QStringList SpeechTranscript::choices(const Control& control, QWidget& focus) {
  if (dynamic_cast<const screen::CellsControl*>(&control)) return cells(focus);
  QStringList lines;
  const QList<QWidget*> parts = control.focusWidgets();
  for (QWidget* part : parts) {
    if (part == &focus || part->isHidden()) continue;
    m_voice.clear();
    control.speak(m_screen.voice(), part);
    lines += choice(part->objectName(), m_voice.lastSaid());
  }
  if (const QStringList items = control.items(); !items.isEmpty())
    lines += choice(u"items"_s, items.join(u" / "));
  return lines;
}

// The row from its second column on: the first is heard when the focus comes.
QStringList SpeechTranscript::cells(QWidget& focus) {
  QStringList lines;
  const auto* table = qobject_cast<QTableView*>(&focus);
  while (table->currentIndex().isValid()) {
    const int column = table->currentIndex().column();
    m_voice.clear();
    m_probe.press(Qt::Key_Right);
    if (table->currentIndex().column() == column) break;
    lines += choice(u"cell"_s, heardInOneLine(m_voice.said()));
  }
  return lines;
}

QStringList SpeechTranscript::menus() {
  QStringList lines;
  QMenuBar* bar = m_screen.menuBar();
  const QList<QAction*> titles = bar->actions();
  for (QAction* title : titles) {
    if (!title->menu()) continue;
    m_voice.clear();
    emit bar->hovered(title);
    lines += line(u"[menu]"_s, m_voice.lastSaid());
    const QList<QAction*> entries = title->menu()->actions();
    for (QAction* entry : entries) {
      if (!entry->isVisible()) continue;
      m_voice.clear();
      emit title->menu()->hovered(entry);
      lines += choice(entry->objectName(), m_voice.lastSaid());
    }
  }
  return lines;
}

}  // namespace program

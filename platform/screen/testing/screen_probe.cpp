#include "platform/screen/testing/screen_probe.h"

#include <QTest>
#include <QtWidgets/QtWidgets>

#include "platform/screen/control_book.h"
#include "platform/screen/control_frame.h"
#include "platform/store/catalogue.h"

namespace screen::testing {
namespace {

bool needsLabel(const QWidget* widget) {
  return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
         qobject_cast<const QComboBox*>(widget) || qobject_cast<const QTableView*>(widget);
}

bool isReachable(const Control& control, const Screen& screen) {
  const QWidget* widget = control.widget();
  if (!control.isShown() || !widget || !widget->isEnabledTo(&screen)) return false;
  for (const QWidget* each = widget; each && each != &screen; each = each->parentWidget()) {
    // A page that is not in front is hidden too; only a hidden control or group is out of reach.
    const bool isPage = qobject_cast<const QStackedWidget*>(each->parentWidget()) != nullptr;
    if (!isPage && each->isHidden()) return false;
  }
  return true;
}

}  // namespace

void ScreenProbe::open() {
  m_screen.show();
  m_screen.activateWindow();
  QApplication::setActiveWindow(&m_screen);
  (void)QTest::qWaitForWindowActive(&m_screen);
}

void ScreenProbe::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* focus = QApplication::focusWidget();
  QTest::keyClick(focus ? focus : &m_screen, key, modifiers);
}

void ScreenProbe::type(const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  if (QWidget* focus = QApplication::focusWidget()) QApplication::sendEvent(focus, &event);
}

void ScreenProbe::walk(const Visit& visit) {
  QSet<QString> visited;
  TabsControl* tabs = m_screen.controls().tabs();
  if (!tabs) return walkPage(visited, visit);
  auto* pages = qobject_cast<QTabWidget*>(tabs->widget());
  pages->setCurrentIndex(0);
  walkPage(visited, visit);
  for (int i = 1; i < pages->count(); ++i) {
    m_voice.clear();
    tabs->step(+1);
    visit(*tabs, *tabs->focusWidgets().first(), m_voice.said());
    walkPage(visited, visit);
  }
}

void ScreenProbe::walkPage(QSet<QString>& visited, const Visit& visit) {
  QSet<const QWidget*> walked;
  while (true) {
    const QWidget* before = QApplication::focusWidget();
    const QString openingSpeech = m_voice.lastSaid();
    m_voice.clear();
    press(Qt::Key_Tab);
    QWidget* now = QApplication::focusWidget();
    if (!now || walked.contains(now)) return;
    walked.insert(now);
    // Arrows of a strip of pages that is wider than the window take the focus too, and say nothing.
    const Control* control = m_screen.controls().of(now);
    if (!control) continue;
    if (visited.contains(control->name())) continue;
    visited.insert(control->name());
    // The only stop of a window keeps the focus: what it said is what it said when the window opened.
    visit(*control, *now, now == before ? QStringList(openingSpeech) : m_voice.said());
  }
}

QList<Stop> ScreenProbe::stops() {
  QList<Stop> stops;
  QSet<QString> known;
  walk([&](const Control& control, const QWidget& focus, const QStringList& heard) {
    if (known.contains(control.name())) return;
    known.insert(control.name());
    stops.append({control.name(), focus.accessibleName(), heard.isEmpty() ? QString() : heard.last()});
  });
  return stops;
}

QStringList ScreenProbe::faults() {
  QStringList faults;
  QHash<QString, QString> owners;
  QSet<QString> reached;
  for (const Stop& stop : stops()) {
    reached.insert(stop.control);
    if (stop.spoken.isEmpty()) faults += stop.control + QLatin1String(": says nothing");
  }
  for (const auto& control : m_screen.controls().all()) {
    for (const QWidget* widget : control->focusWidgets()) {
      const QString name = widget->accessibleName();
      if (name.isEmpty()) faults += control->name() + QLatin1String(": has no accessible name");
      if (owners.contains(name))
        faults += control->name() + QLatin1String(": shares its name with ") + owners[name];
      owners.insert(name, control->name());
      if (needsLabel(widget) && (!control->label() || control->label()->buddy() != widget))
        faults += control->name() + QLatin1String(": has no label");
    }
    if (!control->focusWidgets().isEmpty() && !reached.contains(control->name()) &&
        isReachable(*control, m_screen))
      faults += control->name() + QLatin1String(": Tab does not reach it");
  }
  return faults;
}

QStringList ScreenProbe::unknownColumns(const QStringList& files) const {
  QStringList unknown;
  for (const auto& control : m_screen.controls().all()) {
    if (!control->isBound()) continue;
    const store::TableRow* table = store::tableOfFile(files.value(control->source() - 1));
    if (!table || !store::findColumn(*table, control->column()))
      unknown += QStringLiteral("%1: %2").arg(control->source()).arg(control->column());
  }
  return unknown;
}

}  // namespace screen::testing

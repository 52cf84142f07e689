#include "platform/screen/screen.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/builder.h"
#include "platform/screen/control_frame.h"
#include "platform/screen/screen_parts.h"

namespace screen {

Screen::Screen(const ScreenRow& declaration, Services& services)
    : m_declaration(declaration), m_services(services), m_parts(std::make_unique<Parts>(*this, services)) {
  setObjectName(QString::fromUtf16(declaration.name.get()));
  setWindowTitle(QString::fromUtf16(declaration.caption.get()));
  for (int number = 1; number <= declaration.sources.count(); ++number)
    m_sources.push_back(std::make_unique<DataSource>(*this, number, *declaration.sources.table(number)));
  Builder(*this).build();
}

Screen::~Screen() { m_parts->focus.end(); }

void Screen::showEvent(QShowEvent* event) {
  if (!m_parts->openingSaid) {
    m_parts->openingSaid = true;
    fitToDisplay();
    if (m_parts->firstFocus)
      giveFocus(*m_parts->firstFocus);
    else if (!focusWidget())
      focusFirst();
    speakOpening();
    m_parts->opening.begin();
  }
  QMainWindow::showEvent(event);
}

void Screen::prepareOpening() {
  if (m_parts->openingSaid || m_parts->opening.isHeld()) return;
  // What another window says while it opens (the menu at the start, under the news) is heard first.
  if (!voice().isHeld()) voice().stopSpeech();
  m_parts->opening.begin();
}

void Screen::speakOpening() {
  const QStringList texts = openingTexts();
  if (texts.isEmpty()) return;
  if (m_parts->opening.isHeld())  // what was said while loading is not cut
    voice().speakText(texts.join(voice::kSpeechSeparator));
  else
    voice().speakHeading(texts);
}

bool Screen::awaitsKeyboard() const { return isVisible() && m_parts->opening.isHeld(); }

QStringList Screen::openingTexts() const {
  QStringList texts{m_declaration.heading ? QString::fromUtf16(m_declaration.heading) : windowTitle()};
  for (const auto& control : m_parts->book.all()) {
    const auto* note = dynamic_cast<const NoteControl*>(control.get());
    if (note && note->isSpoken() && note->isShown()) texts += note->caption();
  }
  return texts;
}

bool Screen::event(QEvent* event) {
  // The focus is drawn from the first moment, not only after the first Tab.
  if (event->type() == QEvent::WindowActivate) setAttribute(Qt::WA_KeyboardFocusChange);
  const bool handled = QMainWindow::event(event);
  if (event->type() == QEvent::WindowActivate && !m_parts->closed) onActivate();
  return handled;
}

void Screen::closeEvent(QCloseEvent* event) {
  if (!m_parts->closed && !onCloseBox()) return event->ignore();
  event->accept();
  finishClosing();
}

void Screen::closeNow() {
  if (m_parts->closed) return;
  finishClosing();
  hide();
}

void Screen::finishClosing() {
  if (std::exchange(m_parts->closed, true)) return;
  m_parts->focus.end();
  m_parts->opening.end();
  onClosed();
  if (navigator().loaded(objectName()) == this) navigator().unload(objectName());
}

void Screen::fitToDisplay() {
  const QScreen* display = QGuiApplication::primaryScreen();
  const QSize size = display ? display->availableGeometry().size() - QSize(0, 40) : QSize(1280, 760);
  ensurePolished();
  resize(sizeHint().expandedTo(QSize(480, 240)).boundedTo(size));
}

void Screen::focusFirst() {
  for (const auto& control : m_parts->book.all())
    for (QWidget* widget : control->focusWidgets())
      if (control->isShown() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus &&
          widget->isVisibleTo(this))
        return giveFocus(*widget);
}

void Screen::trigger(const QString& command) {
  if (auto* control = m_parts->book.find<CommandControl>(command)) control->run();
}

void Screen::runCommand(const QString& name, Handler action, int index) {
  const QPointer<Screen> alive(this);
  m_parts->focus.commandRuns();
  const QString outer = std::exchange(m_parts->running, name);
  action(*this, index);
  if (alive) m_parts->running = outer;
}

const ControlBook& Screen::controls() const { return m_parts->book; }

QString Screen::runningCommand() const { return m_parts->running; }

}  // namespace screen

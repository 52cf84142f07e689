#include "tests/program/program_fixture.h"

#include <QDir>
#include <QTest>
#include <QtWidgets/QtWidgets>

#include "frame/core/installation.h"

namespace program {

std::unique_ptr<QTemporaryDir> ProgramTest::s_shipped;

void ProgramTest::SetUpTestSuite() {
  s_shipped = std::make_unique<QTemporaryDir>();
  const auto made = frame::layOut(s_shipped->path(), SOURCE_FOLDER "/data", SOURCE_FOLDER "/templates");
  ASSERT_TRUE(made.ok()) << made.fault().message.toStdString();
}

void ProgramTest::SetUp() {
  for (const QFileInfo& file : QDir(s_shipped->path()).entryInfoList(QDir::Files))
    ASSERT_TRUE(QFile::copy(file.filePath(), m_folder.filePath(file.fileName())));
  m_application =
      std::make_unique<app::Application>(m_folder.path(), app::Channels{m_voice, m_voice, m_voice}, m_clock);
  m_application->messages().answerFromQueue();
}

void ProgramTest::TearDown() {
  m_application.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ProgramTest::start() {
  const QString settings = path(QStringLiteral("qv.dat"));
  auto fields = frame::readSettingsFile(settings);
  ASSERT_TRUE(fields.ok());
  (*fields)[frame::slot::kTopics] = QStringLiteral("15");
  ASSERT_TRUE(frame::writeSettingsFile(settings, *fields).ok());
  ASSERT_EQ(m_application->start(), frame::Started::Menu);
  QCoreApplication::processEvents();
}

screen::Screen& ProgramTest::screen(const QString& name) {
  screen::Screen* loaded = m_application->navigator().loaded(name);
  if (loaded == nullptr) throw std::runtime_error("not loaded: " + name.toStdString());
  return *loaded;
}

void ProgramTest::goTo(const QString& screenName, const QString& control) {
  screen::Screen& window = screen(screenName);
  QApplication::setActiveWindow(&window);
  QCoreApplication::processEvents();
  window.focusOn(control);
  ASSERT_FALSE(window.focused().isEmpty()) << control.toStdString();
}

void ProgramTest::type(const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  if (QWidget* focus = QApplication::focusWidget()) QApplication::sendEvent(focus, &event);
}

void ProgramTest::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  if (QWidget* focus = QApplication::focusWidget()) QTest::keyClick(focus, key, modifiers);
  QCoreApplication::processEvents();
}

void ProgramTest::fill(const QString& screenName, const QString& control, const QString& text) {
  goTo(screenName, control);
  key(Qt::Key_A, Qt::ControlModifier);
  type(text);
}

void ProgramTest::press(const QString& screenName, const QString& control) {
  goTo(screenName, control);
  key(Qt::Key_Space);
}

void ProgramTest::follow(const Road& road) {
  m_voice.clear();
  m_application->navigator().show(
      QString::fromUtf16(road.steps.empty() ? road.screen : road.steps.front().screen));
  for (const Step& step : road.steps) {
    goTo(QString::fromUtf16(step.screen), QString::fromUtf16(step.control));
    m_voice.clear();
    key(step.key);
  }
}

void ProgramTest::closeAllButTheMenu() {
  for (const QString& name : m_application->registry().names())
    if (name != QStringLiteral("選択3")) m_application->navigator().unload(name);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  told();
}

QStringList ProgramTest::told() {
  const QStringList texts = m_application->messages().texts();
  m_application->messages().forget();
  return texts;
}

}  // namespace program

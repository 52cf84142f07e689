// app_bench: figures of the running program, on the offscreen platform. One line a figure.
//   app_bench start DIR   from the launch to the main menu, beside an empty window of the toolkit
//   app_bench focus DIR   from the Tab key to the speech request, on the main menu and on the claim form
//   app_bench list DIR    from the opening of the patient list to the first row's name as a speech request,
//                          and from Ctrl+End to the last cell of the last row
//   app_bench empty | menu DIR   one measured launch (used by `start`)

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QKeyEvent>
#include <QProcess>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cstdio>

#include "app/application.h"
#include "frame/core/routes.h"
#include "platform/store/database.h"
#include "platform/store/record_set.h"
#include "platform/voice/silent_library.h"

namespace {

/// Notes when a text, or one that holds the awaited words, was first asked to be said.
class TimingVoice final : public voice::VoiceControl {
 public:
  explicit TimingVoice(QElapsedTimer& timer) : m_timer(timer) {}
  void VoiceStop() override {}
  void VoiceSay(const QString& text) override {
    if (saidAt < 0 && text.contains(awaited)) saidAt = m_timer.nsecsElapsed();
  }
  void VoiceGo() override {}
  qint64 saidAt = -1;
  QString awaited;

 private:
  QElapsedTimer& m_timer;
};

void figure(const char* name, double value, const char* unit) {
  std::printf("%s %.6g %s\n", name, value, unit);
}

double percentile(QVector<double> values, double part) {
  if (values.isEmpty()) return 0;
  std::sort(values.begin(), values.end());
  return values[std::min<qsizetype>(values.size() - 1, qsizetype(values.size() * part))];
}

double launch(const QStringList& arguments) {
  QElapsedTimer timer;
  timer.start();
  QProcess::execute(QCoreApplication::applicationFilePath(), arguments);
  return timer.nsecsElapsed() / 1e6;
}

int start(const QString& folder) {
  constexpr int kRuns = 9;
  QVector<double> empty, menu;
  for (int run = 0; run < kRuns; ++run) {
    empty += launch({"empty"});
    menu += launch({"menu", folder});
  }
  figure("start_empty_window", percentile(empty, 0.5), "ms");
  figure("start_main_menu", percentile(menu, 0.5), "ms");
  figure("start_ratio", percentile(menu, 0.5) / percentile(empty, 0.5), "x");
  return 0;
}

int emptyWindow() {
  QMainWindow window;
  window.show();
  QTimer::singleShot(0, &window, [] { QCoreApplication::quit(); });
  return QApplication::exec();
}

/// The program in a folder, with messages that nobody must answer.
struct Running {
  explicit Running(const QString& folder) : application(folder, {voice, sound, focusTalk}, clock) {
    timer.start();
    application.messages().answerFromQueue();
  }
  QElapsedTimer timer;
  TimingVoice voice{timer};
  voice::SilentSoundLibrary sound;
  voice::SilentFocusTalkLibrary focusTalk;
  text::SystemClock clock;
  app::Application application;
};

int mainMenu(const QString& folder) {
  Running program(folder);
  if (program.application.start() != frame::Started::Menu) return 1;
  QTimer::singleShot(0, [] { QCoreApplication::quit(); });
  return QApplication::exec();
}

void measureTabs(const char* name, screen::Screen& window, Running& program, int tabs) {
  window.activateWindow();
  QApplication::setActiveWindow(&window);
  QApplication::processEvents();
  QVector<double> times;
  for (int i = 0; i < tabs; ++i) {
    QWidget* focus = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    program.voice.saidAt = -1;
    const qint64 pressed = program.timer.nsecsElapsed();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(focus, &press);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(focus, &release);
    QApplication::processEvents();
    if (program.voice.saidAt >= 0) times += (program.voice.saidAt - pressed) / 1e6;
  }
  figure((QByteArray(name) + "_median").constData(), percentile(times, 0.5), "ms");
  figure((QByteArray(name) + "_p95").constData(), percentile(times, 0.95), "ms");
}

int focus(const QString& folder) {
  Running program(folder);
  screen::ScreenNavigator& navigator = program.application.navigator();
  if (program.application.start() != frame::Started::Menu) return 1;
  navigator.unload(QStringLiteral("topics"));
  QApplication::processEvents();
  if (auto* menu = navigator.loaded(QStringLiteral("選択3")))
    measureTabs("focus_to_speech_menu", *menu, program, 100);
  if (auto* form = navigator.show(routes::ClaimForm{.id = 1})) {
    QApplication::processEvents();
    measureTabs("focus_to_speech_claim_form", *form, program, 300);
  }
  return 0;
}

/// Milliseconds from the action to the speech request that holds the words; -1 where they are not said.
double untilSaid(Running& program, const QString& words, const std::function<void()>& action) {
  constexpr qint64 kLongest = 5'000'000'000;
  program.voice.awaited = words;
  program.voice.saidAt = -1;
  const qint64 began = program.timer.nsecsElapsed();
  action();
  while (program.voice.saidAt < 0 && program.timer.nsecsElapsed() - began < kLongest)
    QApplication::processEvents();
  return program.voice.saidAt < 0 ? -1 : (program.voice.saidAt - began) / 1e6;
}

int list(const QString& folder) {
  constexpr int kRuns = 5;
  const QString name = QStringLiteral("一覧表"), grid = QStringLiteral("DBGrid1");
  QString first, last;
  if (auto database = store::Database::open(folder + QStringLiteral("/臨床QV2000N.mdb"))) {
    if (auto rows = store::RecordSet::open(*database, QStringLiteral("臨床QV"))) {
      first = rows->value(QStringLiteral("氏名"));
      rows->moveLast();
      last = rows->value(QStringLiteral("ID"));
      figure("list_screen_rows", rows->recordCount(), "rows");
    }
  }
  Running program(folder);
  screen::ScreenNavigator& navigator = program.application.navigator();
  if (program.application.start() != frame::Started::Menu || first.isEmpty()) return 1;
  navigator.unload(QStringLiteral("topics"));
  QApplication::processEvents();
  QVector<double> opened, ended;
  for (int run = 0; run < kRuns; ++run) {
    screen::Screen* window = nullptr;
    opened += untilSaid(program, first, [&] {
      window = navigator.show(name);
      if (window == nullptr) return;
      QApplication::setActiveWindow(window);
      if (auto* view = window->findChild<QWidget*>(grid)) view->setFocus();
    });
    QWidget* view = window != nullptr ? window->findChild<QWidget*>(grid) : nullptr;
    if (view == nullptr) return 1;
    ended += untilSaid(program, last, [&] {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_End, Qt::ControlModifier);
      QApplication::sendEvent(view, &press);
    });
    navigator.unload(name);
    QApplication::processEvents();
  }
  if (opened.contains(-1) || ended.contains(-1)) {
    std::fprintf(stderr, "the list did not say its %s row\n", opened.contains(-1) ? "first" : "last");
    return 1;
  }
  figure("list_screen_first_row_first", opened.front(), "ms");
  figure("list_screen_first_row", percentile(opened, 0.5), "ms");
  figure("list_screen_last_row", percentile(ended, 0.5), "ms");
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "*.warning=false;*.info=false");
  const QByteArray word = argc > 1 ? argv[1] : "";
  QApplication application(argc, argv);
  // Absolute: the program changes its working folder.
  const QString folder = argc > 2 ? QFileInfo(QString::fromLocal8Bit(argv[2])).absoluteFilePath() : QString();
  if (word == "start") return start(folder);
  if (word == "focus") return focus(folder);
  if (word == "list") return list(folder);
  if (word == "empty") return emptyWindow();
  if (word == "menu") return mainMenu(folder);
  std::fputs("usage: app_bench start DIR | focus DIR | list DIR\n", stderr);
  return 2;
}

#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QTemporaryDir>

#include "frame/core/run_state.h"
#include "platform/screen/confirm_prompt.h"
#include "platform/screen/navigator_impl.h"
#include "platform/shell/desktop.h"
#include "platform/store/database.h"
#include "platform/voice/recording_channel.h"

namespace frame::test {

/// A navigator that counts the ends of the program instead of ending the test.
class SpyNavigator : public screen::ScreenNavigator {
 public:
  using ScreenNavigator::ScreenNavigator;
  void quit() override { ++quits; }
  int quits = 0;
};

inline constexpr screen::Note kStandInLines[] = {{.name = {u"Label1"}, .caption = u"stands in"}};
inline constexpr screen::PromptButton kStandInButtons[] = {
    {.name = {u"Command1"}, .caption = u"OK", .action = screen::kClosePrompt}};

/// A program folder of its own with qv.dat, a recording voice, queued answers and a clock that stands on
/// 15 June 2024.
class ScreenFixture : public testing::Test {
 protected:
  ScreenFixture() {
    services.messages.answerFromQueue();
    desktop.answerFromQueue();
    navigator.setServices(services);
    run.clock = &clock;
    run.prefectureCode = QStringLiteral("13");
  }

  void SetUp() override {
    loadRun(freshSettings(), folder.path(), run);
    ASSERT_TRUE(writeSettingsFile(settingsPath(folder.path()), freshSettings()));
  }

  QString path(const QString& file) const { return QDir(folder.path()).filePath(file); }
  void makeFile(const QString& name) { ASSERT_TRUE(store::createFresh(path(name), name)); }

  QByteArray settingsBytes() const {
    QFile file(settingsPath(folder.path()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  SettingsSlots storedSettings() const { return readSettingsFile(settingsPath(folder.path())).value(); }

  screen::Screen& shown(const char16_t* name) {
    screen::Screen* screen = navigator.show(QString::fromUtf16(name));
    EXPECT_NE(screen, nullptr) << QString::fromUtf16(name).toStdString();
    return *screen;
  }
  bool isShown(const char16_t* name) const { return navigator.isShown(QString::fromUtf16(name)); }

  /// Captions of a grid's columns.
  static QStringList headersOf(const screen::Screen& screen, const QString& grid) {
    const auto* view = screen.findChild<QAbstractItemView*>(grid);
    QStringList headers;
    for (int column = 0; view && column < view->model()->columnCount(); ++column)
      headers += view->model()->headerData(column, Qt::Horizontal).toString();
    return headers;
  }

  /// Answers the next questions.
  void answer(const QList<bool>& answers) { messages.answerFromQueue(answers); }
  QString lastMessage() const { return messages.texts().isEmpty() ? QString() : messages.texts().last(); }
  static QString notYet(const QString& name) {
    return QStringLiteral("「%1」の画面は、まだこの版にはありません。").arg(name);
  }

  /// Registers a stand-in for a screen of another folder, so that what it is handed can be read.
  void standIn(const QString& name) {
    static constexpr screen::ConfirmRow kRow{
        .name = u"stand-in", .caption = u"stand-in", .lines = kStandInLines, .buttons = kStandInButtons};
    registry.add(name, [this](screen::Services& all) {
      return std::make_unique<screen::ConfirmPrompt>(kRow, noActions, all);
    });
  }
  screen::Request requestOf(const QString& name) const {
    const auto* prompt = dynamic_cast<const screen::ConfirmPrompt*>(navigator.loaded(name));
    return prompt ? prompt->request() : screen::Request{};
  }
  /// The route that a stood-in screen was opened by last; nothing where it is not shown or was opened
  /// otherwise.
  template <screen::Route R>
  std::optional<R> routeTo() const {
    const screen::Request request = requestOf(R::screen);
    const R* route = request.as<R>();
    return route ? std::optional(*route) : std::nullopt;
  }

  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  QTemporaryDir folder;
  text::FixedClock clock{QDate(2024, 6, 15)};
  voice::RecordingChannel channel;
  voice::VoiceGuide guide{channel, channel, channel};
  screen::MessageDoor messages{guide};
  screen::PromptActions noActions;
  screen::ScreenRegistry registry;
  SpyNavigator navigator{registry};
  shell::Desktop desktop;
  screen::Services services{guide, messages, navigator, &desktop};
  RunState run;
};

}  // namespace frame::test

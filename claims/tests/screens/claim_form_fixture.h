#pragma once

#include <gtest/gtest.h>

#include <QHash>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <memory>

#include "claims/core/claim_file.h"
#include "claims/core/claims_state.h"
#include "claims/screens/claim_form_screen.h"
#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "platform/screen/testing/print_text.h"
#include "platform/store/database.h"
#include "platform/voice/recording_channel.h"

namespace claims {

inline QString qs(const char16_t* text) { return QString::fromUtf16(text); }

/// A navigator that shows nothing and remembers everything.
class RecordingNavigator final : public screen::Navigator {
 public:
  screen::Screen* show(const QString& name, const screen::Request& request) override {
    shows << name;
    requests << request;
    return screens.value(name);
  }
  screen::Screen* load(const QString& name) override { return screens.value(name); }
  screen::Screen* loaded(const QString& name) const override { return screens.value(name); }
  bool isShown(const QString& name) const override { return open.contains(name); }
  void unload(const QString& name) override { unloads << name; }
  void quit() override {}

  /// The route of the last show of this kind; fails the test where there was none.
  template <screen::Route R>
  R lastRoute() const {
    const R* route = requests.isEmpty() ? nullptr : requests.last().as<R>();
    EXPECT_NE(route, nullptr) << R::screen.text().toStdString();
    return route ? *route : R{};
  }

  QStringList shows, unloads;
  QList<screen::Request> requests;
  QSet<QString> open;
  QHash<QString, screen::Screen*> screens;
};

/// Printing that answers with one screen and remembers what it was asked.
class RecordingPrinting final : public ClaimPrinting {
 public:
  QString screenOf(const ClaimRecord& shown, const FormTicks& set) const override {
    claim = shown;
    ticks = set;
    return screen;
  }
  void setUpPrinter(quintptr window) override { setUpFor = window; }

  QString screen = qs(u"レセプト印刷2024");
  mutable ClaimRecord claim;
  mutable FormTicks ticks;
  quintptr setUpFor = 0;
};

/// The claim form over fresh files, with fees of its own, a voice that is written down and queued answers.
class ClaimFormTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite();
  static void TearDownTestSuite() { s_files.reset(); }
  void SetUp() override;

  /// Columns of a claim that passes every check: 鍼灸 of 令和6年10月, 3割, はり on two days, はりきゅう on
  /// one.
  static ClaimRecord acupuncture();
  /// あマ of 令和6年10月, 1割: two areas on two days.
  static ClaimRecord massage();

  qint64 add(const ClaimRecord& claim);
  ClaimRecord stored(qint64 id);
  ClaimFormScreen& open(qint64 id, std::optional<screen::ScreenName> opener = {});
  ClaimFormScreen& openNew(const ClaimRecord& claim) { return open(add(claim)); }

  // What a user does.
  /// Shows the form as the active window and puts the focus on the control.
  void goTo(const QString& control);
  void type(const QString& control, const QString& text);
  void choose(const QString& combo, const QString& text);
  void toggle(const QString& control);
  void press(const QString& command) { m_form->trigger(command); }

  /// Messages since the last call.
  QStringList told();
  void answer(const QList<bool>& answers) { m_messages.answerFromQueue(answers); }
  QString path(const QString& file) const { return m_folder.filePath(file); }
  ClaimFile file();

  static std::unique_ptr<QTemporaryDir> s_files;  ///< the fresh files, made once and copied for each test
  QTemporaryDir m_folder;
  voice::RecordingChannel m_channel;
  voice::VoiceGuide m_voice{m_channel, m_channel, m_channel};
  screen::MessageDoor m_messages{m_voice};
  RecordingNavigator m_navigator;
  screen::Services m_services{m_voice, m_messages, m_navigator};
  text::FixedClock m_clock{QDate(2024, 11, 5)};
  frame::RunState m_run;
  RecordingPrinting m_printing;
  ClaimsState m_state;
  std::unique_ptr<ClaimFormScreen> m_form;
};

}  // namespace claims

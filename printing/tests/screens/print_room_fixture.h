#pragma once

#include <gtest/gtest.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include "platform/screen/testing/print_text.h"
#include "platform/voice/recording_channel.h"
#include "printing/screens/printing_screens.h"
#include "printing/tests/core/spy_engine.h"

namespace printing::tests {

/// An open claim form as the printing screens see it.
class ClaimOnTable final : public claims::ClaimOnDisplay {
 public:
  claims::ClaimRecord record() const override { return claim; }
  claims::FormTicks checks() const override { return ticks; }
  quintptr window() const override { return 42; }

  void set(const char16_t* column, const char16_t* text) {
    claim.setNamed(QString::fromUtf16(column), QString::fromUtf16(text));
  }
  claims::ClaimRecord claim;
  claims::FormTicks ticks;
};

/// The printing screens with an engine that takes its calls down, a recording voice and queued answers.
class PrintRoom : public testing::Test {
 protected:
  PrintRoom() {
    run.clock = &clock;
    run.prefectureCode = QStringLiteral("01");
    run.aichiSubmission = QStringLiteral("3");
    state.display = &table;
    messages.answerFromQueue();
    registerScreens(registry, room);
    navigator.setServices(services);
    table.set(u"申請年月", u"令和6年10月");
    table.set(u"施術内容", u"鍼灸");
    table.set(u"保険の種類", u"国保");
    table.set(u"保険の種類3", u"国民健保");
    table.set(u"初療年月日", u"令和6年2月3日");
    table.set(u"治療内容1", u"a");
    table.set(u"療養を受ける者の氏名", u"見本花子");
  }

  screen::Screen& open(const char16_t* name) {
    screen::Screen* screen = navigator.show(QString::fromUtf16(name));
    EXPECT_NE(screen, nullptr);
    return *screen;
  }
  bool isLoaded(const char16_t* name) { return navigator.loaded(QString::fromUtf16(name)) != nullptr; }

  text::FixedClock clock{QDate(2024, 11, 5)};
  frame::RunState run;
  claims::ClaimsState state;
  ClaimOnTable table;
  SpyEngine engine;
  report::PrinterChoice choice;
  PrintingRoom room{run, state, engine, choice};
  voice::RecordingChannel channel;
  voice::VoiceGuide voice{channel, channel, channel};
  screen::MessageDoor messages{voice};
  screen::ScreenRegistry registry;
  screen::ScreenNavigator navigator{registry};
  screen::Services services{voice, messages, navigator};
};

}  // namespace printing::tests

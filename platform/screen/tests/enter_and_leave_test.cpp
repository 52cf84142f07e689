#include <gtest/gtest.h>

#include "sample_screen.h"

namespace screen::testing {
namespace {

class EnterAndLeave : public ::testing::Test {
 protected:
  void SetUp() override { probe.open(); }
  Harness harness;
  SampleScreen screen{harness.services};
  ScreenProbe probe{screen, harness.spy};
};

TEST_F(EnterAndLeave, EnterRunsTheFieldsAction) {
  screen.focusOn("txtFields(4)");
  probe.press(Qt::Key_Return);
  EXPECT_EQ(screen.log, QStringList{"enter 4"});
  EXPECT_EQ(screen.focused(), "txtFields(4)");
}

TEST_F(EnterAndLeave, EnterRunsTheListsAction) {
  screen.focusOn("Combo2");
  probe.press(Qt::Key_Return);
  EXPECT_EQ(screen.log, QStringList{"enter -1"});
  EXPECT_EQ(screen.focused(), "Combo2");
}

TEST_F(EnterAndLeave, EnterGoesOnWhereTheFieldHasNoAction) {
  screen.focusOn("txtFields(5)");
  probe.press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(screen.focused(), "txtFields(6)");
}

TEST_F(EnterAndLeave, EnterOnAButtonPressesIt) {
  screen.focusOn("cmdUpdate");
  probe.press(Qt::Key_Return);
  EXPECT_EQ(screen.log, QStringList{"store"});
}

TEST_F(EnterAndLeave, EnterInAMemoIsANewLineAndTabLeavesIt) {
  screen.focusOn("txtMemo");
  probe.type("一");
  probe.press(Qt::Key_Return);
  probe.type("二");
  EXPECT_EQ(screen.text("txtMemo"), "一\n二");
  probe.press(Qt::Key_Tab);
  EXPECT_EQ(screen.focused(), "DBGrid1");
}

TEST_F(EnterAndLeave, LeavingAFieldRunsItsHandler) {
  screen.focusOn("txtFields(4)");
  probe.press(Qt::Key_Tab);
  EXPECT_EQ(screen.log, QStringList{"leave 4"});
  EXPECT_EQ(screen.focused(), "txtFields(5)");
}

TEST_F(EnterAndLeave, HandlerSendsTheFocusBackAfterItsMessage) {
  screen.refuseToLeave = true;
  screen.focusOn("txtFields(4)");
  harness.spy.clear();
  probe.press(Qt::Key_Tab);
  EXPECT_EQ(screen.focused(), "txtFields(4)");
  EXPECT_EQ(screen.log, QStringList{"leave 4"});
  EXPECT_EQ(harness.messages.texts(), QStringList{"氏名を直して下さい。"});
  EXPECT_TRUE(harness.spy.lastSaid().startsWith("※氏名:"));
}

TEST_F(EnterAndLeave, AnotherWindowInFrontIsNotLeaving) {
  screen.focusOn("txtFields(4)");
  SampleScreen other(harness.services);
  ScreenProbe(other, harness.spy).open();
  EXPECT_TRUE(screen.log.isEmpty());
}

TEST_F(EnterAndLeave, ClosingIsNotLeaving) {
  screen.focusOn("txtFields(4)");
  screen.close();
  EXPECT_EQ(screen.log, QStringList{"closed"});
}

TEST_F(EnterAndLeave, ProgramMayFillFieldsUnnoticed) {
  screen.setText("txtFields(4)", "見本");
  screen.setText("Combo1", "住所1");
  screen.setChecked("Check1", true);
  screen.choose("Frame1", "2");
  EXPECT_TRUE(screen.log.isEmpty());
  EXPECT_FALSE(screen.checkChanged());
}

TEST_F(EnterAndLeave, UsersChangesAreToldAndMarked) {
  screen.focusOn("txtFields(4)");
  probe.type("灸");
  EXPECT_EQ(screen.log, QStringList{"edit 4"});
  EXPECT_FALSE(screen.checkChanged());
  screen.focusOn("Check1");
  probe.press(Qt::Key_Space);
  EXPECT_TRUE(screen.checkChanged());
  screen.clearCheckChanged();
  EXPECT_FALSE(screen.checkChanged());
}

TEST_F(EnterAndLeave, TickWithoutTheMarkLeavesItAlone) {
  screen.focusOn("Check2");
  probe.press(Qt::Key_Space);
  EXPECT_TRUE(screen.checked("Check2"));
  EXPECT_FALSE(screen.checkChanged());
}

TEST(StandardCommand, RunsOnEnterThatNoFieldTakes) {
  struct Finder : Screen {
    using Screen::Screen;
  };
  static int found;
  static constexpr Row rows[] = {
      TextField{.name = {u"Text1"}, .caption = u"検索:", .bind = Unbound{u"searched text"}},
      Command{.name = {u"Command1"},
              .caption = u"検索",
              .run = screen::Run(+[](Screen&, int) { ++found; }),
              .standard = true},
  };
  static constexpr ScreenRow declaration{.name = u"検索", .caption = u"検索", .rows = rows};
  Harness harness;
  Finder screen(declaration, harness.services);
  ScreenProbe probe(screen, harness.spy);
  probe.open();
  screen.focusOn("Text1");
  found = 0;
  probe.press(Qt::Key_Return);
  EXPECT_EQ(found, 1);
  EXPECT_EQ(screen.focused(), "Text1");
}

}  // namespace
}  // namespace screen::testing

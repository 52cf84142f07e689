#include <gtest/gtest.h>

#include <QtWidgets/QtWidgets>

#include "sample_screen.h"

namespace screen::testing {
namespace {

class Builder : public ::testing::Test {
 protected:
  template <class T>
  T* widget(const char* name) {
    T* found = screen.findChild<T*>(QString::fromUtf8(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  QString accessible(const char* name) { return widget<QWidget>(name)->accessibleName(); }

  Harness harness;
  SampleScreen screen{harness.services};
  ScreenProbe probe{screen, harness.spy};
};

TEST_F(Builder, NamesScreenAndControlsAsDeclared) {
  EXPECT_EQ(screen.objectName(), "見本1");
  EXPECT_EQ(screen.windowTitle(), "見本の画面");
  widget<QLineEdit>("txtFields(4)");
  widget<QPushButton>("cmdUpdate");
  widget<QComboBox>("Combo1");
  widget<QCheckBox>("Check1");
  widget<QGroupBox>("Frame1");
  widget<QRadioButton>("Option1(1)");
  widget<QLineEdit>("txtDay(62)");
  widget<QPlainTextEdit>("txtMemo");
  widget<QTabWidget>("TabStrip1");
  widget<QTableView>("DBGrid1");
  widget<QLabel>("Label1");
}

TEST_F(Builder, FamilyNumbersCaptionsAndColumns) {
  EXPECT_EQ(screen.caption("txtDay(60)"), "1日 治療内容:");
  EXPECT_EQ(screen.caption("txtDay(62)"), "3日 治療内容:");
  EXPECT_TRUE(probe.unknownColumns({"臨床QV2000N.mdb"}).isEmpty());
  EXPECT_EQ(probe.unknownColumns({"予約2000.mdb"}).value(0), "1: 氏名");
}

TEST_F(Builder, AccessibleNameIsTheCaptionWithoutColonAndAccessKey) {
  EXPECT_EQ(accessible("txtFields(4)"), "※氏名");
  EXPECT_EQ(accessible("cmdUpdate"), "登録");
  EXPECT_EQ(accessible("txtMemo"), "メモ");
  EXPECT_EQ(accessible("DBGrid1"), "患者の一覧");
  EXPECT_EQ(accessible("Check1"), "印刷する");
}

TEST_F(Builder, TickCarriesTheWordOfItsGroup) { EXPECT_EQ(accessible("Check2"), "往療 要"); }

TEST_F(Builder, OptionWhoseCaptionStandsOnceNeedsNoWordOfItsGroup) {
  EXPECT_EQ(accessible("Option1(0)"), "男性");
  EXPECT_EQ(accessible("Option1(1)"), "女性");
}

TEST(BuilderOptions, OfOneCaptionAreToldApartByTheirGroups) {
  static constexpr Choice first[] = {{{u"Option1", 0}, u"する", u"0"}, {{u"Option1", 1}, u"しない", u"1"}};
  static constexpr Choice second[] = {{{u"Option2", 0}, u"する", u"0"}, {{u"Option2", 1}, u"隠す", u"1"}};
  static constexpr Row rows[] = {
      Options{.name = {u"Frame1"}, .caption = u"男女", .bind = Unbound{u"a sample"}, .choices = first},
      Options{.name = {u"Frame2"}, .caption = u"続柄", .bind = Unbound{u"a sample"}, .choices = second},
  };
  static constexpr ScreenRow declaration{.name = u"選択肢", .caption = u"選択肢", .rows = rows};
  Harness harness;
  Screen screen(declaration, harness.services);
  const auto name = [&](const char* button) {
    return screen.findChild<QWidget*>(QLatin1String(button))->accessibleName();
  };
  EXPECT_EQ(name("Option1(0)"), "男女 する");
  EXPECT_EQ(name("Option2(0)"), "続柄 する");
  EXPECT_EQ(name("Option1(1)"), "しない");
  EXPECT_EQ(name("Option2(1)"), "隠す");
}

TEST_F(Builder, CaptionThatOccursTwiceIsToldApartByItsGroup) {
  EXPECT_EQ(accessible("txtFields(6)"), "勤務先 住所");
  EXPECT_NE(accessible("txtFields(5)"), accessible("txtFields(6)"));
  EXPECT_EQ(screen.caption("txtFields(6)"), "住所:");
}

TEST(BuilderDoubles, AreNumberedWhereNoWordTellsThemApart) {
  static constexpr Row rows[] = {
      TextField{.name = {u"Text1"}, .caption = u"日付:", .bind = Unbound{u"first"}},
      TextField{.name = {u"Text2"}, .caption = u"日付:", .bind = Unbound{u"second"}},
      Group{.name = {u"Frame1"}, .caption = u"同意"},
      TextField{.name = {u"Text3"}, .caption = u"日付:", .bind = Unbound{u"third"}},
      TextField{.name = {u"Text4"}, .caption = u"日付:", .bind = Unbound{u"fourth"}},
      EndGroup{},
  };
  static constexpr ScreenRow declaration{.name = u"見本2", .caption = u"見本", .rows = rows};
  Harness harness;
  Screen screen(declaration, harness.services);
  const auto name = [&](const char* control) {
    return screen.findChild<QWidget*>(control)->accessibleName();
  };
  EXPECT_EQ(name("Text1"), "日付");
  EXPECT_EQ(name("Text2"), "日付 2");
  EXPECT_EQ(name("Text3"), "同意 日付");
  EXPECT_EQ(name("Text4"), "同意 日付 2");
}

TEST_F(Builder, EveryFieldHasALabelThatLeadsToIt) {
  for (const char* name : {"txtFields(4)", "txtDay(61)", "txtMemo", "Combo1", "Combo2", "DBGrid1"}) {
    const auto labels = screen.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](QLabel* label) {
      return label->buddy() && label->buddy()->objectName() == name;
    })) << name;
  }
}

TEST_F(Builder, FieldInsideAnEditableListBearsTheListsName) {
  EXPECT_EQ(widget<QComboBox>("Combo2")->lineEdit()->accessibleName(), "区分");
}

TEST_F(Builder, TipIsTheAccessibleDescription) {
  EXPECT_EQ(widget<QWidget>("cmdUpdate")->accessibleDescription(), "患者を登録します");
  EXPECT_EQ(widget<QWidget>("txtFields(4)")->accessibleDescription(), "姓と名");
}

TEST_F(Builder, TabOrderIsRowOrder) {
  probe.open();
  QStringList names;
  for (const Stop& stop : probe.stops()) names += stop.control;
  // Tab was first pressed on the first control, which therefore comes last on the first page.
  const QStringList firstPage{"cmdClose",     "TabStrip1", "txtFields(4)", "txtFields(5)",
                              "txtFields(6)", "Combo1",    "Combo2",       "Check1",
                              "Check2",       "Frame1",    "cmdUpdate"};
  const QStringList secondPage{"txtDay(60)", "txtDay(61)", "txtDay(62)", "txtMemo", "DBGrid1", "Table1"};
  EXPECT_EQ(names, firstPage + secondPage);
}

TEST_F(Builder, NothingIsNamelessMuteOrOutOfReach) {
  probe.open();
  EXPECT_EQ(probe.faults(), QStringList());
}

TEST_F(Builder, FocusIsDrawnBeforeTheFirstTab) {
  probe.open();
  EXPECT_TRUE(screen.testAttribute(Qt::WA_KeyboardFocusChange));
}

TEST_F(Builder, ButtonAndMenuTwinRunTheSameAction) {
  auto* twin = widget<QAction>("Men_FU");
  EXPECT_EQ(twin->text(), "登録(&S)");
  twin->trigger();
  widget<QPushButton>("cmdUpdate")->click();
  screen.trigger("cmdUpdate");
  screen.trigger("Men_FU");
  EXPECT_EQ(screen.log, QStringList({"store", "store", "store", "store"}));
}

TEST_F(Builder, MenuTwinMayHaveACaptionOfItsOwn) {
  EXPECT_EQ(widget<QAction>("Men_FC")->text(), "終わる");
  screen.setCaption("cmdClose", "戻る");
  EXPECT_EQ(widget<QAction>("Men_FC")->text(), "終わる");
  screen.setCaption("cmdUpdate", "更新");
  EXPECT_EQ(widget<QAction>("Men_FU")->text(), "更新");
  EXPECT_EQ(accessible("cmdUpdate"), "更新");
}

TEST_F(Builder, MenusStandInTheOrderOfTheRows) {
  QStringList titles;
  for (const QAction* menu : screen.menuBar()->actions()) titles += menu->text();
  EXPECT_EQ(titles, QStringList({"ファイル(&F)", "特殊"}));
  screen.trigger("Men_X");
  EXPECT_EQ(screen.log, QStringList({"store"}));
}

TEST_F(Builder, DisabledOrHiddenCommandTakesItsTwinAlong) {
  screen.setEnabledControl("cmdUpdate", false);
  EXPECT_FALSE(widget<QAction>("Men_FU")->isEnabled());
  screen.trigger("Men_FU");
  EXPECT_TRUE(screen.log.isEmpty());
  screen.setShown("cmdClose", false);
  EXPECT_FALSE(widget<QAction>("Men_FC")->isVisible());
  EXPECT_FALSE(screen.isControlShown("cmdClose"));
}

TEST_F(Builder, KeyOfACommandRunsIt) {
  probe.open();
  probe.press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(screen.log, QStringList({"close"}));
}

TEST_F(Builder, HiddenFieldTakesItsLabelAlong) {
  screen.setShown("txtFields(5)", false);
  for (const QLabel* label : screen.findChildren<QLabel*>()) {
    const bool isItsLabel = label->buddy() && label->buddy()->objectName() == "txtFields(5)";
    EXPECT_EQ(label->isHidden(), isItsLabel) << label->text().toStdString();
  }
  EXPECT_TRUE(screen.isControlShown("txtFields(4)"));
}

TEST_F(Builder, RedCaptionCanBeSetAndTakenBack) {
  screen.setCaptionRed("txtFields(4)", true);
  EXPECT_TRUE(screen.isCaptionRed("txtFields(4)"));
  screen.setCaptionRed("txtFields(4)", false);
  EXPECT_FALSE(screen.isCaptionRed("txtFields(4)"));
}

}  // namespace
}  // namespace screen::testing

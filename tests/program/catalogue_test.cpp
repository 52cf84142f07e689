// Every registered screen, walked as a user without sight meets it.

#include "tests/program/program_fixture.h"

namespace program {
namespace {

struct SourceRow {
  const char16_t* screen;
  QStringList files;
};

// Which files the sources of a bound screen are opened on.
const SourceRow kSources[] = {
    {u"治療台帳4", {"臨床QV2000N.mdb"}},
    {u"治療台帳2", {"臨床QV2000N.mdb"}},
    {u"集計", {"カルテ2データ2000.mdb"}},
    {u"一覧表", {"臨床QV2000N.mdb"}},
    {u"frmレセプトフォーム", {"保険申請2000_1.mdb", "保険申請2000_2.mdb"}},
    {u"レセプト一覧表", {"保険申請2000_1.mdb"}},
    {u"治療台帳3", {"カルテ2データ2000.mdb", "保険申請2000_2.mdb", "保険申請2000_1.mdb"}},
    {u"frmCLmoji", {"CLmoji2000.mdb"}},
    {u"frmCl2moji", {"CL2moji2000.mdb"}},
    {u"frm経穴", {"Keiraku2000.mdb"}},
    {u"登録2", {"同意医師2000.mdb"}},
    {u"登録3", {"保険者2000.mdb"}},
    {u"予約2", {"予約2000.mdb"}},
    {u"今日の予約", {"予約2000.mdb"}},
    {u"予約週間表", {"予約2000.mdb"}},
};

class CatalogueTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    start();
  }
};

TEST_F(CatalogueTest, EveryScreenOpensAndIsNamedSpokenAndReachable) {
  for (const QString& name : m_application->registry().names()) {
    SCOPED_TRACE(name.toStdString());
    screen::Screen* window = m_application->navigator().show(name);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->objectName(), name);
    EXPECT_FALSE(window->windowTitle().isEmpty());
    screen::testing::ScreenProbe probe(*window, m_voice);
    probe.open();
    const QStringList faults = probe.faults();
    EXPECT_TRUE(faults.isEmpty()) << faults.join('\n').toStdString();
    m_application->navigator().unload(name);
    told();
  }
}

TEST_F(CatalogueTest, BoundColumnsExist) {
  for (const SourceRow& row : kSources) {
    const QString name = QString::fromUtf16(row.screen);
    SCOPED_TRACE(name.toStdString());
    screen::Screen* window = m_application->navigator().show(name);
    ASSERT_NE(window, nullptr);
    screen::testing::ScreenProbe probe(*window, m_voice);
    EXPECT_EQ(probe.unknownColumns(row.files), QStringList());
    m_application->navigator().unload(name);
  }
}

// A command of a room that is not built says so by name, spoken, and opens nothing.
TEST_F(CatalogueTest, AMissingRoomIsToldByName) {
  EXPECT_EQ(m_application->navigator().show(QStringLiteral("領収証選択")), nullptr);
  const QStringList texts = told();
  ASSERT_EQ(texts.size(), 1);
  EXPECT_TRUE(texts[0].contains(QStringLiteral("領収証選択")));
  EXPECT_TRUE(m_voice.said().contains(texts[0]));
}

}  // namespace
}  // namespace program

// Every list and form over a file that cannot be read for a while: the engine's text with the file's name is
// shown and spoken, the row on the screen stays, and the next try works when the cause is gone.

#include <QCoreApplication>

#include "frame/core/routes.h"
#include "platform/store/bulk.h"
#include "platform/store/testing/broken_file.h"
#include "tests/program/program_fixture.h"

namespace program {
namespace {

using namespace Qt::Literals::StringLiterals;
using store::broken::DamagedPage;
using store::broken::LockedFile;

struct WalkedScreen {
  const char* label;
  const char16_t* screen;
  const char16_t* file;
  const char16_t* marker;  ///< a column of text, in which each row differs
  bool pages = true;       ///< the table is wide enough for a page a row
};

constexpr WalkedScreen kWalked[] = {
    {"PatientForm", u"治療台帳4", u"臨床QV2000N.mdb", u"氏名"},
    {"PatientChart", u"治療台帳2", u"臨床QV2000N.mdb", u"氏名"},
    {"PatientList", u"一覧表", u"臨床QV2000N.mdb", u"氏名"},
    {"VisitLedger", u"治療台帳3", u"カルテ2データ2000.mdb", u"治療概略"},
    {"Takings", u"集計", u"カルテ2データ2000.mdb", u"治療概略"},
    {"ClaimList", u"レセプト一覧表", u"保険申請2000_1.mdb", u"氏名"},
    {"ClaimForm", u"frmレセプトフォーム", u"保険申請2000_1.mdb", u"氏名"},
    {"Phrases1", u"frmCLmoji", u"CLmoji2000.mdb", u"moji", false},
    {"Phrases2", u"frmCl2moji", u"CL2moji2000.mdb", u"setu1", false},
    {"Acupoints", u"frm経穴", u"Keiraku2000.mdb", u"経穴名漢字"},
    {"Doctors", u"登録2", u"同意医師2000.mdb", u"氏名"},
    {"Insurers", u"登録3", u"保険者2000.mdb", u"名称", false},
    {"Bookings", u"今日の予約", u"予約2000.mdb", u"予約患者"},
    {"BookingForm", u"予約2", u"予約2000.mdb", u"予約患者"},
};

class UnreadableScreens : public ProgramTest, public testing::WithParamInterface<WalkedScreen> {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    start();
    file = QString::fromUtf16(GetParam().file);
    fill(file, QString::fromUtf16(GetParam().marker));
    if (file == u"保険申請2000_1.mdb") fill(u"保険申請2000_2.mdb"_s, u"a1"_s);
    screen::Screen* shown = m_application->navigator().show(QString::fromUtf16(GetParam().screen), request());
    ASSERT_NE(shown, nullptr);
    QCoreApplication::processEvents();
    told();
    m_voice.clear();
  }
  /// Rows of a fresh file, each on a page of its own where the columns allow it.
  void fill(const QString& name, const QString& marker) const {
    ASSERT_TRUE(QFile::remove(path(name)));
    ASSERT_TRUE(store::createFresh(path(name), name).ok());
    const store::TableRow& table = *store::tableOfFile(name);
    QList<QHash<QString, store::Value>> rows;
    for (int row = 1; row <= kRows; ++row) {
      QHash<QString, store::Value> values{{marker, nameOf(row)}, {u"ETC1"_s, u"P1"_s}, {u"番号1"_s, u"P1"_s}};
      // A claim is checked before the form leaves it: only its remarks are filled up.
      for (const auto& [column, value] :
           {std::pair(u"申請年月"_s, u"令和6年10月"_s), std::pair(u"施術内容"_s, u"鍼灸"_s),
            std::pair(u"保険の種類"_s, u"国保"_s), std::pair(u"保険の種類3"_s, u"国民健保"_s),
            std::pair(u"初療年月日"_s, u"令和6年9月2日"_s), std::pair(u"一部負担金"_s, u"3割"_s),
            std::pair(u"治療内容1"_s, u"a"_s)})
        values.insert(column, value);
      for (int remark = 1; remark <= 6; ++remark) values.insert(u"摘要%1"_s.arg(remark), QString(250, u'見'));
      rows += name.startsWith(u"保険申請") ? values : store::broken::pageOfRow(table, values);
    }
    ASSERT_TRUE(store::addRows(path(name), QString::fromUtf16(table.table), rows).ok());
  }
  screen::Request request() const {
    const QStringView name(GetParam().screen);
    if (name == u"治療台帳3")
      return routes::VisitLedger{
          routes::VisitLedger::Of{.serial = u"P1"_s, .name = u"見本"_s, .birth = {}, .opener = {}}};
    if (name == u"frmレセプトフォーム") return routes::ClaimForm{.id = 2};
    if (name == u"治療台帳2") return routes::PatientTexts{};
    return {};
  }
  static QString nameOf(int row) { return u"見本の行%1番"_s.arg(row); }
  screen::Screen& window() { return screen(QString::fromUtf16(GetParam().screen)); }
  store::RecordSet& rows() { return window().source().rows(); }
  QString marked() { return rows().value(QString::fromUtf16(GetParam().marker)); }
  void expectFault(const QString& cause) {
    const QStringList texts = told();
    ASSERT_EQ(texts.size(), 1) << texts.join('\n').toStdString();
    EXPECT_TRUE(texts[0].startsWith(QString::fromUtf16(screen::kDataControlText)));
    EXPECT_TRUE(texts[0].contains(file) && texts[0].contains(cause)) << texts[0].toStdString();
    EXPECT_TRUE(m_voice.said().contains(texts[0])) << "it is spoken too";
  }

  static constexpr int kRows = 5;
  QString file;
};

TEST_P(UnreadableScreens, AMoveBehindALockIsReportedStaysAndWorksLater) {
  window().goFirst();
  told();
  ASSERT_EQ(rows().absolutePosition(), 0);
  const QString before = marked();
  ASSERT_FALSE(before.isEmpty());
  LockedFile other(path(file));
  window().goNext();
  expectFault(u"使用中"_s);
  EXPECT_EQ(rows().absolutePosition(), 0);
  EXPECT_EQ(marked(), before);
  other.release();
  window().goNext();
  EXPECT_EQ(told(), QStringList());
  EXPECT_EQ(rows().absolutePosition(), 1);
  EXPECT_NE(marked(), before);
}

TEST_P(UnreadableScreens, ADamagedRowIsReportedAndTheOthersAreReached) {
  if (!GetParam().pages) GTEST_SKIP() << "several rows share a page";
  window().goFirst();
  window().goNext();
  told();
  const QString before = marked();
  const int next = before == nameOf(2) ? 3 : kRows - 2;  // up or down the IDs
  DamagedPage page(path(file), nameOf(next));
  window().goNext();
  expectFault(u"壊れている"_s);
  EXPECT_EQ(rows().absolutePosition(), 1);
  EXPECT_EQ(marked(), before);
  window().goLast();
  EXPECT_EQ(told(), QStringList());
  EXPECT_EQ(rows().absolutePosition(), rows().recordCount() - 1);
  page.repair();
  window().goPrevious();
  window().goPrevious();
  EXPECT_EQ(told(), QStringList());
  EXPECT_EQ(marked(), nameOf(next));
}

INSTANTIATE_TEST_SUITE_P(All, UnreadableScreens, testing::ValuesIn(kWalked),
                         [](const auto& of) { return std::string(of.param.label); });

}  // namespace
}  // namespace program

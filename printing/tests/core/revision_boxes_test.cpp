// An invented surcharge goes from its tick to a box of a form made here.
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "claims/core/claim_store.h"
#include "claims/tests/core/invented_revision.h"
#include "platform/report/report_engine.h"
#include "platform/text/whole_file.h"
#include "printing/core/claim_form_900.h"
#include "printing/tests/core/claim_fixture.h"

namespace printing::tests {
namespace {

using claims::testing::InventedRevision;

// The form of the revision: that of 2024 with three boxes of known numbers.
constexpr char kForm[] =
    "form HARI_910\n"
    "base HARI_900\n"
    "text dain901 20 250 20 5 pt 9 right\n"
    "text dain902 45 250 20 5 pt 9 right\n"
    "text dain903 70 250 20 5 pt 9 right\n";

class RevisionBoxes : public ::testing::Test {
 protected:
  /// One plain day, one day at one patient's, one sudden visit, stored.
  PrintSource sourceOf(const char16_t* month) {
    claims::FeeFiles files(QStringLiteral("/p"), QStringLiteral("/p/料金設定2000.mdb"));
    files.national = revision.files();
    const auto claim = claims::testing::makeClaim(month, u"鍼灸", u"3割", u"1=a 2=a/v1 3=a/t",
                                                  {{InventedRevision::kTick.name(), u"1"}});
    Filled filled;
    filled.source.claim =
        claims::storeClaim(claim, {claims::testing::era(), files, revision, revision.table()}).claim;
    return filled.source;
  }

  QStringList boxes(const PrintSource& source, claims::EraTable table) {
    SpyEngine engine;
    ReportFields fields(engine);
    fillClaim900(fields, source, claims::testing::era(), table);
    return engine.sheet().filter(QRegularExpression(QStringLiteral("^dain90[1-3]=|^dain46=")));
  }

  InventedRevision revision;
};

TEST_F(RevisionBoxes, TheSurchargeGoesToItsBoxes) {
  // needles 2,000 x 2, one patient 4,000, sudden 2,500, the surcharge 70 x 2
  EXPECT_EQ(boxes(sourceOf(u"令和60年6月"), revision.table()),
            QStringList({"dain46=10,640", "dain901=70", "dain902=2", "dain903=140"}));
}

TEST_F(RevisionBoxes, AnEarlierClaimPrintsAsBefore) {
  const PrintSource source = sourceOf(u"令和60年5月");
  const QStringList before = boxes(source, claims::eras());
  ASSERT_EQ(before.size(), 1);
  EXPECT_EQ(boxes(source, revision.table()), before);
}

TEST_F(RevisionBoxes, TheFormOfTheRevisionPrintsThem) {
  QTemporaryDir folder;
  ASSERT_TRUE(QFile::copy(QStringLiteral(SOURCE_FOLDER "/templates/HARI_900.PRP"),
                          folder.filePath(QStringLiteral("HARI_900.PRP"))));
  ASSERT_TRUE(text::writeWholeFile(folder.filePath(QStringLiteral("HARI_910.PRP")), kForm).ok());
  const QString path = folder.filePath(QStringLiteral("claim.pdf"));
  report::ReportEngine engine(
      folder.path(), [&](const report::PrinterChoice&) { return std::make_unique<report::FileSink>(path); });
  ASSERT_EQ(engine.PR_StartDC(0, engine.PR_GetPrinterDC(), QStringLiteral("見本"), 0), report::kStarted);
  ASSERT_EQ(engine.PR_LoadReport(0, 0, QStringLiteral("HARI_910.PRP")), 0)
      << engine.loadFault().toStdString();
  ReportFields fields(engine);
  fillClaim900(fields, sourceOf(u"令和60年6月"), claims::testing::era(), revision.table());
  engine.PR_PlayReport();
  engine.PR_EndDoc();
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
  if (!reader.waitForStarted() || !reader.waitForFinished()) GTEST_SKIP() << "pdftotext is not installed";
  const QString page = QString::fromUtf8(reader.readAllStandardOutput());
  EXPECT_TRUE(page.contains(QRegularExpression(QStringLiteral("\\b70\\s+2\\s+140\\b"))))
      << page.toStdString();
}

}  // namespace
}  // namespace printing::tests

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include "platform/report/prp_loader.h"
#include "platform/report/report_engine.h"
#include "printing/core/claim_job.h"
#include "printing/tests/core/claim_fixture.h"

// A full claim on the real form, played by the real engine, and what the finished page gives back.

namespace printing::tests {
namespace {

QString templates() { return QStringLiteral(SOURCE_FOLDER "/templates"); }

/// Prints the source into the file; how the run ended.
RunEnd printTo(const QString& path, const PrintSource& source, const QString& folder = templates()) {
  report::ReportEngine engine(
      folder, [&](const report::PrinterChoice&) { return std::make_unique<report::FileSink>(path); });
  static const text::FixedClock clock(QDate(2024, 11, 5));
  static const frame::EraDates dates(frame::EraCapability::Supported, clock);
  return runPrint(engine, claimJob(source, PrintScreen::General2024, dates));
}

/// Text of the file in its own reading order, without blanks and line breaks; null where pdftotext is not
/// installed.
QString readBack(const QString& path) {
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), path, QStringLiteral("-")});
  if (!reader.waitForStarted() || !reader.waitForFinished()) return QString();
  QString dense(QStringLiteral(""));
  for (const QChar c : QString::fromUtf8(reader.readAllStandardOutput()))
    if (!c.isSpace()) dense += c;
  return dense;
}

class ClaimPdf : public ::testing::TestWithParam<PrintKind> {
 protected:
  Filled claim() const { return GetParam() == PrintKind::Acupuncture ? fullAcupuncture() : fullMassage(); }
  QTemporaryDir folder;
};

TEST_P(ClaimPdf, EveryPrintedTextReadsBackFromThePage) {
  Filled filled = claim();
  filled.set({{u"摘要4",
               u"歩行が困難なため自宅で施術を行った。症状は落ち着いているが痛みが残り、経過を見ている。"}});
  const QString path = folder.filePath(QStringLiteral("claim.pdf"));
  ASSERT_EQ(printTo(path, filled.source), RunEnd::Printed);
  const QString page = readBack(path);
  if (page.isNull()) GTEST_SKIP() << "pdftotext is not installed";

  const auto form =
      report::loadForm(templates(), GetParam() == PrintKind::Acupuncture ? QStringLiteral("HARI_900.PRP")
                                                                         : QStringLiteral("Massage_900.PRP"));
  ASSERT_TRUE(form);
  int texts = 0;
  for (const QString& line : filled.fill().sheet()) {
    const QString text = line.section(u'=', 1).remove(u'　').remove(u' ');
    const int at = form.value()->find(line.section(u'=', 0, 0));
    if (text.isEmpty() || at < 0) continue;
    const report::Item& item = form.value()->items[static_cast<size_t>(at)];
    if (item.kind == report::Kind::Choice || item.vertical) continue;
    EXPECT_TRUE(page.contains(text)) << line.toStdString();
    ++texts;
  }
  EXPECT_GT(texts, 100);
}

TEST_P(ClaimPdf, ItemsOnlyLeavesThePrintedWordsAway) {
  Filled filled = claim();
  filled.source.form.itemsOnly = true;
  const QString path = folder.filePath(QStringLiteral("items.pdf"));
  ASSERT_EQ(printTo(path, filled.source), RunEnd::Printed);
  const QString page = readBack(path);
  if (page.isNull()) GTEST_SKIP() << "pdftotext is not installed";
  EXPECT_TRUE(page.contains(QStringLiteral("見本花子")));
  for (const char* word : {"被保険者欄", "機関コード", "請求額", "申請者"})
    EXPECT_FALSE(page.contains(QString::fromUtf8(word))) << word;
}

TEST_P(ClaimPdf, FormsHoldAnItemForAllThatTheClaimPrints) {
  Filled filled = claim();
  const auto form = report::loadForm(templates(), GetParam() == PrintKind::Acupuncture
                                                      ? QStringLiteral("HARI_900_R.PRP")
                                                      : QStringLiteral("Massage_900_R.PRP"));
  ASSERT_TRUE(form);
  // What the mapping names beyond the papers: no box for the whole account number, the share of 7 of
  // ten and the address a third time.
  // The counts of the body parts stand in boxes of their own names.
  QSet<QString> elsewhere{"kouza2", "Kyuufu_3", "HHokenAdd"};
  if (GetParam() == PrintKind::Massage)
    for (int n = 1; n <= 9; ++n) elsewhere.insert(QStringLiteral("dain%1").arg(n));
  for (const QString& line : filled.fill().sheet()) {
    const QString item = line.section(u'=', 0, 0);
    if (!elsewhere.contains(item)) {
      EXPECT_GE(form.value()->find(item), 0) << item.toStdString();
    }
  }
}

TEST_P(ClaimPdf, MissingTemplateLeavesNoPaper) {
  const QTemporaryDir empty;
  const QString path = folder.filePath(QStringLiteral("none.pdf"));
  EXPECT_EQ(printTo(path, claim().source, empty.path()), RunEnd::NotLoaded);
  EXPECT_FALSE(QFile::exists(path));
}

INSTANTIATE_TEST_SUITE_P(BothKinds, ClaimPdf, ::testing::Values(PrintKind::Acupuncture, PrintKind::Massage));

}  // namespace
}  // namespace printing::tests

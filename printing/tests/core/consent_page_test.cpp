#include "printing/core/consent_page.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include "platform/report/report_engine.h"
#include "printing/contract/hand_print.h"
#include "printing/tests/core/spy_engine.h"

namespace printing::tests {
namespace {

using namespace Qt::Literals::StringLiterals;
using Ends = QList<claims::ConsentEnd>;

const QDate kToday(2024, 11, 5);

Ends ends(int count) {
  Ends rows;
  for (int i = 1; i <= count; ++i)
    rows.append({u"見本　%1号"_s.arg(i), u"国保"_s, kToday.addDays(i % 30), u"鍼灸"_s, {}});
  return rows;
}

QStringList page(const Ends& rows, int number = 0) {
  SpyEngine engine;
  drawConsentPage(engine, rows, kToday, number);
  return engine.calls;
}

QStringList outputs(const QStringList& calls) { return calls.filter(u"PR_Output"_s); }

const QStringList kMargins = {u"PR_SetMargin 240 300"_s, u"PR_SetScale"_s};
const QStringList kHead = {u"PR_SetFont ＭＳ 明朝"_s,
                           u"PR_SetFontSize 50"_s,
                           u"PR_Output 135 -20 印刷日:2024/11/5"_s,
                           u"PR_SetFontSize 80"_s,
                           u"PR_Output 37 -5 同意期限一ヶ月データ一覧"_s,
                           u"PR_SetFontSize 50"_s,
                           u"PR_Output 18 15 氏名　　　　　　　保険の種類　　　　　同意期限　　　施術内容"_s,
                           u"PR_SetPen 3"_s,
                           u"PR_Line 0 20 170 20"_s};

TEST(ConsentPage, IsDrawnInTheOrderOfTheContract) {
  EXPECT_EQ(page(ends(1)),
            kMargins + kHead +
                QStringList({u"PR_Output 0 22 見本　1号"_s, u"PR_Output 60 22 国保"_s,
                             u"PR_Output 105 22 2024年11月6日"_s, u"PR_Output 150 22 鍼灸"_s}));
}

TEST(ConsentPage, ThirtySixRowsFillAPage) {
  EXPECT_EQ(consentPages(0), 1);
  EXPECT_EQ(consentPages(36), 1);
  EXPECT_EQ(consentPages(37), 2);
  EXPECT_EQ(consentPages(72), 2);
  EXPECT_EQ(consentPages(73), 3);
  EXPECT_EQ(outputs(page(ends(37), 0)).size(), 3 + 36 * 4);
  EXPECT_EQ(outputs(page(ends(37), 0)).last(), u"PR_Output 150 249.5 鍼灸"_s);
}

TEST(ConsentPage, TheNextPageHasAHeadOfItsOwnAndTheMarginsStay) {
  const QStringList calls = page(ends(37), 1);
  EXPECT_EQ(calls.mid(0, kHead.size()), kHead);
  EXPECT_EQ(calls.at(kHead.size()), u"PR_Output 0 22 見本　37号"_s);
  EXPECT_EQ(calls.size(), kHead.size() + 4);
}

TEST(ConsentPage, WithoutRowsTheHeadStandsAlone) { EXPECT_EQ(page({}), kMargins + kHead); }

TEST(ConsentPage, AnEmptyCellIsLeftAlone) {
  EXPECT_EQ(outputs(page({{u"見本"_s, QString(), kToday, QString(), {}}})).mid(3),
            QStringList({u"PR_Output 0 22 見本"_s, u"PR_Output 105 22 2024年11月5日"_s}));
}

/// The name's calls of a page with this name.
QStringList nameCalls(const QString& name) {
  const QStringList calls = page({{name, QString(), kToday, QString(), {}}});
  return calls.mid(kMargins.size() + kHead.size(), calls.size() - kMargins.size() - kHead.size() - 1);
}

TEST(ConsentPage, ALongNameIsSetSmaller) {
  EXPECT_EQ(nameCalls(QString(11, u'あ')), QStringList{u"PR_Output 0 22 "_s + QString(11, u'あ')});
  EXPECT_EQ(nameCalls(QString(22, u'ｱ')), QStringList{u"PR_Output 0 22 "_s + QString(22, u'ｱ')})
      << "half width";
  // 57 mm for 19 characters are 3 mm each.
  EXPECT_EQ(nameCalls(QString(19, u'あ')),
            QStringList(
                {u"PR_SetFontSize 30"_s, u"PR_Output 0 23 "_s + QString(19, u'あ'), u"PR_SetFontSize 50"_s}));
}

TEST(ConsentPage, WhatEvenTheSmallestTypeDoesNotHoldIsCutWithAMark) {
  // 57 mm hold 28 characters of 2 mm.
  EXPECT_EQ(nameCalls(QString(28, u'あ')).at(1), u"PR_Output 0 23.5 "_s + QString(28, u'あ'));
  EXPECT_EQ(nameCalls(QString(29, u'あ')).at(1), u"PR_Output 0 23.5 "_s + QString(27, u'あ') + u'…');
}

TEST(ConsentPage, ALetterOfTwoUnitsIsNotCutInTwo) {
  const QString rare = u"𠮷"_s;  // two units
  EXPECT_EQ(nameCalls(rare.repeated(29)).at(1), u"PR_Output 0 23.5 "_s + rare.repeated(27) + u'…');
}

TEST(ConsentPage, EveryRowReadsBackFromThePaper) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"list.pdf"_s);
  report::ReportEngine engine(
      folder.path(), [&](const report::PrinterChoice&) { return std::make_unique<report::FileSink>(path); });
  Ends rows = ends(37);
  rows[3].name = QString(40, u'見');
  HandJob job;
  job.title = u"同意期限一ヶ月以内"_s;
  job.pages = consentPages(rows.size());
  job.draw = [&](report::ReportOperations& operations, int number) {
    drawConsentPage(operations, rows, kToday, number);
  };
  ASSERT_EQ(runHandPrint(engine, job), RunEnd::Printed);
  QProcess reader;
  reader.start(u"pdftotext"_s, {u"-raw"_s, path, u"-"_s});
  if (!reader.waitForStarted() || !reader.waitForFinished()) GTEST_SKIP() << "pdftotext is not installed";
  const QStringList pages =
      QString::fromUtf8(reader.readAllStandardOutput()).remove(u' ').remove(u'　').split(u'\f');
  ASSERT_EQ(pages.size(), 3) << "two pages and what follows the last form feed";
  for (int i = 0; i < 37; ++i) {
    const QString name = i == 3 ? QString(27, u'見') + u'…' : u"見本%1号"_s.arg(i + 1);
    EXPECT_TRUE(pages[i / 36].contains(name)) << i;
  }
  for (int number : {0, 1}) EXPECT_TRUE(pages[number].contains(u"印刷日:2024/11/5"_s)) << number;
}

}  // namespace
}  // namespace printing::tests

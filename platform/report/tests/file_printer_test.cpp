#include "platform/report/file_printer.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace report {
namespace {

class FilePrinterTest : public ::testing::Test {
 protected:
  bool print(const QString& title, const QByteArray& pdf) {
    FilePrinter printer(m_folder.path(),
                        std::make_shared<text::FixedClock>(QDate(2024, 11, 5), QTime(9, 8, 7)));
    return printer.open(title) && printer.take(pdf);
  }
  QStringList files() const {
    return QDir(m_folder.filePath(QStringLiteral("印刷"))).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }
  QByteArray content(const QString& name) const {
    QFile file(m_folder.filePath(QStringLiteral("印刷/") + name));
    file.open(QIODevice::ReadOnly);
    return file.readAll();
  }

  QTemporaryDir m_folder;
};

TEST_F(FilePrinterTest, namesTheFileByTitleAndTime) {
  ASSERT_TRUE(print(QStringLiteral("申請書鍼"), "%PDF one"));
  EXPECT_EQ(files(), QStringList{QStringLiteral("申請書鍼_20241105_090807.pdf")});
  EXPECT_EQ(content(files()[0]), "%PDF one");
}

TEST_F(FilePrinterTest, neverOverwrites) {
  for (const char* pdf : {"one", "two", "three"}) ASSERT_TRUE(print(QStringLiteral("申請書マ"), pdf));
  EXPECT_EQ(content(QStringLiteral("申請書マ_20241105_090807.pdf")), "one");
  EXPECT_EQ(content(QStringLiteral("申請書マ_20241105_090807_2.pdf")), "two");
  EXPECT_EQ(content(QStringLiteral("申請書マ_20241105_090807_3.pdf")), "three");
  EXPECT_EQ(files().size(), 3);
}

TEST_F(FilePrinterTest, aDroppedDocumentLeavesNothing) {
  {
    FilePrinter printer(m_folder.path());
    ASSERT_TRUE(printer.open("x"));
  }
  EXPECT_TRUE(files().isEmpty());
}

TEST_F(FilePrinterTest, makesATitleFitForAFileName) {
  EXPECT_EQ(FilePrinter::fileStem("../a/b\\c:d*e"), "_._a_b_c_d_e");
  EXPECT_EQ(FilePrinter::fileStem(" \n"), QStringLiteral("印刷"));
  EXPECT_LE(FilePrinter::fileStem(QString(300, u'長')).toUtf8().size(), 200);
}

TEST_F(FilePrinterTest, tellsWhenItsFolderCannotBeMade) {
  QFile file(m_folder.filePath(QStringLiteral("印刷")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));  // a file stands where the folder should be
  file.close();
  EXPECT_FALSE(print("x", "pdf"));
}

TEST_F(FilePrinterTest, AFolderThatIsGoneIsAFaultWithItsName) {
  FilePrinter printer(m_folder.path());
  ASSERT_TRUE(printer.open("x"));
  ASSERT_TRUE(QDir(m_folder.filePath(QStringLiteral("印刷"))).removeRecursively());
  const text::Done taken = printer.take("pdf");
  ASSERT_FALSE(taken);
  EXPECT_TRUE(taken.fault().message.contains(QStringLiteral("「印刷」")))
      << taken.fault().message.toStdString();
}

TEST(Printers, theFilePrinterIsTheOnlyOneWithoutAPrintService) {
  const auto printers = listPrinters();  // the tests run with a print service that is not there
  ASSERT_EQ(printers.size(), 1u);
  EXPECT_EQ(printers[0].name, kFilePrinter);
  EXPECT_TRUE(printers[0].isDefault);
  EXPECT_EQ(defaultPrinter(), kFilePrinter);
}

TEST(Printers, theFilePrinterTakesJapanesePapers) {
  QStringList media;
  for (const MediaSize& size : listMedia(kFilePrinter)) media << size.media;
  EXPECT_TRUE(media.contains("iso_a4_210x297mm"));
  EXPECT_TRUE(media.contains("jis_b5_182x257mm"));
  EXPECT_FALSE(media.contains("iso_b5_176x250mm"));
}

TEST(Printers, aPrinterThatIsGoneDoesNotLoseTheDocument) {
  QTemporaryDir folder;
  PrinterChoice choice;
  choice.printer = QStringLiteral("no such printer");
  const auto sink = printerSinks(folder.path())(choice);
  ASSERT_TRUE(sink->open(QStringLiteral("申請書鍼")));
  ASSERT_TRUE(sink->take("pdf"));
  EXPECT_EQ(QDir(folder.filePath(QStringLiteral("印刷"))).entryList(QDir::Files).size(), 1);
}

TEST(Printers, aDocumentThatNobodyTakesIsAFaultWithThePrintersName) {
  QTemporaryDir folder;
  PrinterChoice choice;
  choice.printer = QStringLiteral("no such printer");
  const auto sink = printerSinks(folder.path())(choice);
  ASSERT_TRUE(sink->open(QStringLiteral("申請書鍼")));
  const QString place = folder.filePath(QStringLiteral("印刷"));
  ASSERT_TRUE(QDir(place).removeRecursively());
  QFile file(place);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));  // in the place of the folder
  const text::Done taken = sink->take("pdf");
  ASSERT_FALSE(taken);
  EXPECT_TRUE(taken.fault().message.contains(choice.printer)) << taken.fault().message.toStdString();
}

}  // namespace
}  // namespace report

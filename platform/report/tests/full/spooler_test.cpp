// Against a print service of its own: cupsd on a socket in a temporary folder, with one queue whose
// backend keeps what it is sent.

#include <cups/cups.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QThread>
#include <functional>

#include "platform/report/report_engine.h"
#include "platform/report/tests/pdf_reading.h"

namespace report::testing {
namespace {

const QString kCupsd = QStringLiteral("/usr/sbin/cupsd");
const QString kSystemBin = QStringLiteral("/usr/lib/cups");

const char* const kConf = R"~(Listen %1/cups.sock
LogLevel info
WebInterface No
Browsing Off
DefaultShared No
PreserveJobFiles No
DefaultPolicy default
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
JobPrivateAccess all
JobPrivateValues none
SubscriptionPrivateAccess all
SubscriptionPrivateValues none
<Limit All>
Order deny,allow
</Limit>
</Policy>
)~";

const char* const kFilesConf = R"~(ServerRoot %1/etc
ServerBin %1/bin
DataDir /usr/share/cups
RequestRoot %1/spool
TempDir %1/spool/tmp
CacheDir %1/cache
StateDir %1/state
AccessLog %1/log/access
ErrorLog %1/log/error
PageLog %1/log/page
Sandboxing relaxed
%2)~";

const char* const kPrinters = R"~(NextPrinterId 2
<DefaultPrinter office>
PrinterId 1
Info office
MakeModel Office PDF
DeviceURI office:/out
State Idle
StateTime 1700000000
ConfigTime 1700000000
Type 4
Accepting Yes
Shared No
JobSheets none none
QuotaPeriod 0
PageLimit 0
KLimit 0
OpPolicy default
ErrorPolicy abort-job
</DefaultPrinter>
)~";

const char* const kBackend = R"~(#!/bin/sh
if [ $# -eq 0 ]; then echo 'direct office:/out "Office" "Office"'; exit 0; fi
if [ -n "$6" ]; then cat "$6"; else cat; fi > "%1/out/part" || exit 1
printf '%s\n' "$3" "$4" "$5" > "%1/out/job"
mv "%1/out/part" "%1/out/page.pdf"
)~";

const char* const kPpd = R"~(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "OFFICE.PPD"
*Manufacturer: "Office"
*Product: "(Office)"
*ModelName: "Office PDF"
*ShortNickName: "Office PDF"
*NickName: "Office PDF"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*cupsVersion: 2.4
*cupsFilter2: "application/pdf application/pdf 0 -"
*OpenUI *PageSize/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageSize B5/JIS B5: "<</PageSize[516 729]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageRegion B5/JIS B5: "<</PageSize[516 729]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "0 0 595 842"
*ImageableArea B5/JIS B5: "0 0 516 729"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*PaperDimension B5/JIS B5: "516 729"
*DefaultFont: Courier
)~";

class SpoolerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!QFile::exists(kCupsd)) GTEST_SKIP() << "cupsd is not installed";
    if (!canReadPdf()) GTEST_SKIP() << "pdftotext is not installed";
    writeService();
    m_cupsd.start(kCupsd, {"-f", "-c", path("etc/cupsd.conf"), "-s", path("etc/cups-files.conf")});
    ASSERT_TRUE(waitFor([&] { return QFile::exists(path("cups.sock")); })) << "cupsd did not start";
    cupsSetServer(path("cups.sock").toUtf8().constData());
  }
  void TearDown() override {
    cupsSetServer("/nonexistent/cups");
    m_cupsd.kill();
    m_cupsd.waitForFinished();
  }

  QString path(const QString& name) const { return m_folder.filePath(name); }

  static bool waitFor(const std::function<bool()>& done) {
    for (int i = 0; i < 1000; ++i, QThread::msleep(10))
      if (done()) return true;
    return false;
  }

  void put(const QString& name, const QString& content) {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content.toUtf8());
  }

  void writeService() {
    QFile(m_folder.path()).setPermissions(QFile::Permissions(0x7755));
    for (const char* folder : {"etc/ppd", "spool/tmp", "cache", "state", "log", "bin/backend", "out"})
      QDir().mkpath(path(folder));
    for (const char* part : {"filter", "daemon", "monitor", "notifier", "driver", "cgi-bin"})
      if (QFile::exists(kSystemBin + u'/' + part))
        QFile::link(kSystemBin + u'/' + part, path(QStringLiteral("bin/") + part));
    const bool root = geteuid() == 0;
    const QString who =
        root ? QStringLiteral("User lp\nGroup lp\nSystemGroup lpadmin\n")
             : QStringLiteral("User %1\nGroup %2\nSystemGroup %2\n")
                   .arg(QFileInfo(m_folder.path()).owner(), QFileInfo(m_folder.path()).group());
    put("etc/cupsd.conf", QString::fromUtf8(kConf).arg(m_folder.path()));
    put("etc/cups-files.conf", QString::fromUtf8(kFilesConf).arg(m_folder.path(), who));
    put("etc/printers.conf", QString::fromUtf8(kPrinters));
    put("etc/ppd/office.ppd", QString::fromUtf8(kPpd));
    put("bin/backend/office", QString::fromUtf8(kBackend).replace("%1", m_folder.path()));
    // cupsd runs a backend that others may not read as root, any other one as user lp.
    QFile(path("bin/backend/office")).setPermissions(QFile::Permissions(root ? 0x7700 : 0x7755));
  }

  QStringList job() {
    EXPECT_TRUE(waitFor([&] { return QFile::exists(path("out/page.pdf")); })) << "no job arrived";
    QFile file(path("out/job"));
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll()).split(u'\n');
  }
  QByteArray page() {
    QFile file(path("out/page.pdf"));
    file.open(QIODevice::ReadOnly);
    return file.readAll();
  }

  QTemporaryDir m_folder;
  QProcess m_cupsd;
};

TEST_F(SpoolerTest, listsTheQueueItsPapersAndTheFilePrinter) {
  const auto printers = listPrinters();
  ASSERT_EQ(printers.size(), 2u);
  EXPECT_EQ(printers[0].name, "office");
  EXPECT_TRUE(printers[0].isDefault);
  EXPECT_EQ(printers[1].name, kFilePrinter);
  EXPECT_EQ(defaultPrinter(), "office");
  QStringList media;
  for (const MediaSize& size : listMedia("office")) media << size.media;
  EXPECT_TRUE(media.contains("iso_a4_210x297mm")) << media.join(' ').toStdString();
  EXPECT_TRUE(media.contains("jis_b5_182x257mm")) << media.join(' ').toStdString();
}

TEST_F(SpoolerTest, aDocumentArrivesWithTitleOptionsAndText) {
  QTemporaryDir program;
  QFile form(program.filePath("F.PRP"));
  ASSERT_TRUE(form.open(QIODevice::WriteOnly));
  form.write("form F\ntext Name8 20 20 100 8\n");
  form.close();
  ReportEngine engine(program.path());
  engine.printerChoice().copies = 2;
  engine.printerChoice().media = QStringLiteral("jis_b5_182x257mm");
  engine.printerChoice().sides = Sides::LongEdge;
  engine.printerChoice().orientation = Orientation::Landscape;
  ASSERT_LE(engine.PR_StartDC(0, engine.PR_GetPrinterDC(), QStringLiteral("申請書鍼"), kStartFlags),
            kStartFailureAbove);
  ASSERT_EQ(engine.PR_LoadReport(0, 0, "F.PRP"), 0);
  engine.PR_RepSetVisible("Name8", kShown);
  engine.PR_RepSetText("Name8", QStringLiteral("支給　見本～"));
  engine.PR_PlayReport();
  engine.PR_EndDoc();
  const QStringList told = job();
  EXPECT_EQ(told.value(0), QStringLiteral("申請書鍼"));
  EXPECT_EQ(told.value(1), "2");
  EXPECT_TRUE(told.value(2).contains("jis_b5_182x257mm") || told.value(2).contains("PageSize=B5"))
      << told.value(2).toStdString();
  EXPECT_TRUE(told.value(2).contains("two-sided-long-edge")) << told.value(2).toStdString();
  EXPECT_TRUE(told.value(2).contains("orientation-requested=4")) << told.value(2).toStdString();
  EXPECT_EQ(linesOf(page()), QStringList{QStringLiteral("支給　見本～")});
  EXPECT_FALSE(QFile::exists(program.filePath(QStringLiteral("印刷"))));
}

TEST_F(SpoolerTest, aServiceThatDiesBetweenStartAndEndDoesNotLoseTheDocument) {
  QTemporaryDir program;
  QFile form(program.filePath("F.PRP"));
  ASSERT_TRUE(form.open(QIODevice::WriteOnly));
  form.write("form F\ntext Name8 20 20 100 8\n");
  form.close();
  ReportEngine engine(program.path());
  ASSERT_LE(engine.PR_StartDC(0, engine.PR_GetPrinterDC(), QStringLiteral("申請書マ"), kStartFlags),
            kStartFailureAbove);
  ASSERT_EQ(engine.PR_LoadReport(0, 0, "F.PRP"), 0);
  engine.PR_PlayReport();
  m_cupsd.kill();
  m_cupsd.waitForFinished();
  engine.PR_EndDoc();
  const QStringList kept = QDir(program.filePath(QStringLiteral("印刷"))).entryList(QDir::Files);
  ASSERT_EQ(kept.size(), 1);
  EXPECT_TRUE(kept[0].startsWith(QStringLiteral("申請書マ_")));
}

}  // namespace
}  // namespace report::testing

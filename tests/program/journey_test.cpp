// The road of one claim: from an empty program folder to the printed form and the next month's claim.

#include <QDir>
#include <QProcess>

#include "claims/core/claim_file.h"
#include "tests/program/program_fixture.h"

namespace program {
namespace {

using namespace Qt::StringLiterals;

class JourneyTest : public ProgramTest {
 protected:
  void enterPatient();
  void makeClaim(const QString& treatment);
  void fillClaim();
  claims::ClaimRecord stored(qint64 id) {
    auto file = claims::ClaimFile::open(m_application->run().folders);
    EXPECT_TRUE(file.ok());
    return file->read(id).value();
  }
  /// Text of the newest document in the folder of the file printer, blanks taken out.
  QString printedText();

  const QString kForm = u"frmレセプトフォーム"_s;
};

void JourneyTest::enterPatient() {
  press(u"選択3"_s, u"Command1"_s);
  press(u"選択4"_s, u"Command1"_s);
  ASSERT_TRUE(isOpen(u"無データ"_s));
  press(u"無データ"_s, u"Command1"_s);
  const QString patient = u"治療台帳4"_s;
  ASSERT_TRUE(isOpen(patient));
  fill(patient, u"txtFields(1)"_s, u"1"_s);
  fill(patient, u"txtFields(3)"_s, u"ﾐﾎﾝ ﾀﾛｳ"_s);
  fill(patient, u"txtFields(4)"_s, u"見本　太郎"_s);
  fill(patient, u"txtFields(5)"_s, u"男"_s);
  fill(patient, u"txtF6"_s, u"1953/3/5"_s);
  key(Qt::Key_Return);
  answer({true});
  press(patient, u"cmdUpdate"_s);
}

void JourneyTest::makeClaim(const QString& treatment) {
  press(u"治療台帳4"_s, u"Command6"_s);
  press(u"新規レセプト"_s, u"Command1"_s);
  press(u"レセプト選択"_s, u"Option1(3)"_s);
  press(u"レセプト選択"_s, treatment);
  press(u"レセプト選択"_s, u"Option3(0)"_s);
  press(u"レセプト選択"_s, u"Command1"_s);
  ASSERT_TRUE(isOpen(kForm));
}

// 鍼灸, 令和6年10月, 3割: はり on the 2nd and 5th, はりきゅう on the 9th.
void JourneyTest::fillClaim() {
  screen::Screen& form = screen(kForm);
  fill(kForm, u"txtFields(1)"_s, u"令和6年10月"_s);
  fill(kForm, u"txtFields(10)"_s, u"10"_s);
  fill(kForm, u"txtFields(11)"_s, u"1"_s);
  fill(kForm, u"Combo1(3)"_s, u"みほん市"_s);
  fill(kForm, u"Combo1(1)"_s, u"国民健保"_s);
  fill(kForm, u"Combo1(2)"_s, u"3割"_s);
  form.showPage(u"同意書"_s);
  fill(kForm, u"txtFields(65)"_s, u"令和6年10月2日"_s);
  form.showPage(u"治療"_s);
  fill(kForm, u"Text5(2)"_s, u"a"_s);
  fill(kForm, u"Text5(5)"_s, u"a"_s);
  fill(kForm, u"Text5(9)"_s, u"e"_s);
}

QString JourneyTest::printedText() {
  const QDir folder(path(u"印刷"_s));
  const QStringList papers = folder.entryList({u"*.pdf"_s}, QDir::Files, QDir::Time);
  if (papers.isEmpty()) return QString();
  QProcess reader;
  reader.start(u"pdftotext"_s, {u"-layout"_s, folder.filePath(papers.first()), u"-"_s});
  if (!reader.waitForFinished()) return QString();
  return QString::fromUtf8(reader.readAllStandardOutput()).remove(u' ').remove(u'\n');
}

// はり 1,610 yen twice and はりきゅう 1,770 yen once (fees of the notice for 令和6年10月): 4,990 yen; three
// tenths are 1,497 yen, the insurer pays 3,493 yen.
TEST_F(JourneyTest, FromAnEmptyFolderToThePrintedFormAndTheNextMonth) {
  start();
  enterPatient();
  EXPECT_EQ(screen(u"治療台帳4"_s).text(u"txtFields(7)"_s), u"71"_s);
  makeClaim(u"Option2(0)"_s);
  fillClaim();
  told();

  answer({true});
  press(kForm, u"cmdUpdate"_s);
  EXPECT_EQ(told(), QStringList{u"       \u3000\u3000    更新しますか？"_s});
  const claims::ClaimRecord claim = stored(1);
  EXPECT_EQ(claim.get(claim::total), u"4990"_s);
  EXPECT_EQ(claim.get(claim::share), u"1497"_s);
  EXPECT_EQ(claim.get(claim::claimed), u"3493"_s);
  EXPECT_EQ(claim.get(claim::subject), u"鍼灸"_s);
  EXPECT_TRUE(claim.get(claim::hariRecord).startsWith(u"鍼データ集結ver9.0,"_s));

  press(kForm, u"Command5"_s);
  ASSERT_TRUE(isOpen(u"レセプト印刷2024"_s));
  answer({true});
  press(u"レセプト印刷2024"_s, u"Command1"_s);
  const QString paper = printedText();
  for (const QString& text :
       {u"療　養　費　支　給　申　請　書"_s, u"見本　太郎"_s, u"4,990"_s, u"1,497"_s, u"3,493"_s, u"1,770"_s})
    EXPECT_TRUE(paper.contains(text)) << text.toStdString();
  told();

  answer({true, true, true});
  press(kForm, u"Command1"_s);
  const QStringList questions = told();
  ASSERT_FALSE(questions.isEmpty());
  EXPECT_TRUE(questions.first().startsWith(u"この患者の新しいレセプトを追加しますか？"_s));
  const claims::ClaimRecord next = stored(2);
  EXPECT_EQ(next.get(claim::month), u"令和6年11月"_s);
  EXPECT_EQ(next.get(claim::monthNumber), u"11"_s);
  EXPECT_EQ(next.get(claim::requestCount), u"2"_s);
  EXPECT_EQ(next.get(claim::requestKind), u"継続"_s);
  EXPECT_EQ(next.get(claim::insurerName), u"みほん市"_s);
  EXPECT_TRUE(next.code(2).isEmpty());
}

}  // namespace
}  // namespace program

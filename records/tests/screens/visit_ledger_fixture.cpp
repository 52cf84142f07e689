#include "records/tests/screens/visit_ledger_fixture.h"

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QtWidgets/QtWidgets>

namespace records::test {

using namespace Qt::Literals::StringLiterals;

void VisitLedgerFixture::SetUp() {
  RecordsFixture::SetUp();
  makeFile(kVisitFile);
  for (const QString& file : {u"保険申請2000_1.mdb"_s, u"保険申請2000_2.mdb"_s}) makeFile(file);
}

screen::Screen& VisitLedgerFixture::open(const QString& key, const QString& name) {
  screen::Screen* screen = navigator.show(routes::VisitLedger{routes::VisitLedger::Of{
      .serial = key, .name = name, .birth = u"昭和28年3月5日"_s, .opener = routes::PatientRegister::screen}});
  EXPECT_NE(screen, nullptr);
  activate();
  return *screen;
}

void VisitLedgerFixture::activate() {
  ledger().show();
  QApplication::setActiveWindow(&ledger());
  settle();
}

store::RecordSet VisitLedgerFixture::visits() const {
  return std::move(
      store::RecordSet::open(store::Database::open(path(kVisitFile)).value(), u"カルテ"_s).value());
}

void VisitLedgerFixture::addVisit(const QHash<QString, QString>& columns, const QString& key) {
  store::RecordSet rows = visits();
  ASSERT_TRUE(rows.addNew());
  ASSERT_TRUE(rows.setValue(u"ETC1"_s, key));
  for (auto column = columns.cbegin(); column != columns.cend(); ++column)
    ASSERT_TRUE(rows.setValue(column.key(), column.value())) << column.key().toStdString();
  ASSERT_TRUE(rows.update());
}

void VisitLedgerFixture::addOn(const QString& date, const QString& shadow, const QString& summary) {
  addVisit({{u"氏名"_s, u"見本　太郎"_s},
            {u"生年月日"_s, u"昭和28年3月5日"_s},
            {u"治療日時"_s, date},
            {u"治療日チェック"_s, shadow},
            {u"治療概略"_s, summary}});
}

void VisitLedgerFixture::elsewhere(const char* statement) const {
  const pid_t child = ::fork();
  if (child == 0) {
    sqlite3* other = nullptr;
    sqlite3_open(QFile::encodeName(path(kVisitFile)).constData(), &other);
    ::_exit(sqlite3_exec(other, statement, nullptr, nullptr, nullptr) == SQLITE_OK ? 0 : 3);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

QStringList VisitLedgerFixture::visitsStored(const QString& column) const {
  const store::RecordSet rows = visits();
  QStringList values;
  for (int row = 0; row < rows.recordCount(); ++row) values << rows.valueAt(row, column);
  return values;
}

QStringList VisitLedgerFixture::onView(const QString& column) const {
  const store::RecordSet& rows = ledger().source().rows();
  QStringList values;
  for (int row = 0; row < rows.recordCount(); ++row) values << rows.valueAt(row, column);
  return values;
}

qint64 VisitLedgerFixture::addClaim(const char16_t* month, const char16_t* kind,
                                    std::initializer_list<Day> codes) {
  claims::ClaimRecord claim;
  const std::pair<const char16_t*, const char16_t*> columns[] = {
      {u"番号1", u"P1"},          {u"氏名", u"見本　太郎"},       {u"申請年月", month},
      {u"施術内容", kind},        {u"保険の種類", u"国保"},       {u"保険の種類3", u"国民健保"},
      {u"保険者名称", u"架空市"}, {u"被保険者との続柄", u"本人"}, {u"初療年月日", u"令和6年9月2日"},
      {u"一部負担金", u"3割"}};
  for (const auto& [column, value] : columns)
    claim.setNamed(QString::fromUtf16(column), QString::fromUtf16(value));
  for (const auto& [day, code] : codes) claim.set(claim::dayCode[day], QString::fromUtf16(code));
  auto file = claims::ClaimFile::open(run.folders);
  EXPECT_TRUE(file);
  const auto id = file->add(claim);
  EXPECT_TRUE(id);
  return id ? *id : 0;
}

claims::ClaimRecord VisitLedgerFixture::claim(qint64 id) const {
  auto file = claims::ClaimFile::open(run.folders);
  EXPECT_TRUE(file);
  return file->read(id).value();
}

void VisitLedgerFixture::tickGrid() { ledger().findChild<QCheckBox*>(u"Check1"_s)->click(); }

QStringList VisitLedgerFixture::told() {
  const QStringList texts = messages.texts();
  messages.forget();
  return texts;
}

}  // namespace records::test

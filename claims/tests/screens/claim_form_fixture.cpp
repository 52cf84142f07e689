#include "claims/tests/screens/claim_form_fixture.h"

namespace claims {

namespace {

constexpr std::pair<int, const char16_t*> kFiles[] = {{frame::folder::kClaims1, u"保険申請2000_1.mdb"},
                                                      {frame::folder::kClaims2, u"保険申請2000_2.mdb"},
                                                      {frame::folder::kDoctors, u"同意医師2000.mdb"},
                                                      {frame::folder::kInsurers, u"保険者2000.mdb"}};
constexpr const char16_t* kFeeFiles[] = {u"料金設定2000.mdb", u"料金設定2024.mdb"};

// Fees of no real edition, chosen so that sums are easy to follow.
const QList<std::pair<QString, QString>>& fees() {
  static const QList<std::pair<QString, QString>> list = {
      {qs(u"はり"), qs(u"1500")},           {qs(u"灸"), qs(u"1500")},
      {qs(u"はり灸"), qs(u"1600")},         {qs(u"はり電療"), qs(u"100")},
      {qs(u"はり初回"), qs(u"1900")},       {qs(u"はり灸初回"), qs(u"2200")},
      {qs(u"マッサージ1局所"), qs(u"450")}, {qs(u"徒手矯正術"), qs(u"470")},
      {qs(u"温罨法"), qs(u"180")},          {qs(u"電気光線器具併用"), qs(u"300")},
      {qs(u"往診料2Kまで"), qs(u"2300")},   {qs(u"加算往診料4K"), qs(u"2550")},
      {qs(u"加算往診料16K"), qs(u"480")},   {qs(u"突発的な往療"), qs(u"2300")},
      {qs(u"特別地域"), qs(u"250")},        {qs(u"施術報告書交付料"), qs(u"480")},
      {qs(u"はり訪問施術11"), qs(u"3800")}};
  return list;
}

void makeFees(const QString& path, const QString& file) {
  ASSERT_TRUE(store::createFresh(path, file).ok());
  auto database = store::Database::open(path);
  ASSERT_TRUE(database.ok());
  auto rows = store::RecordSet::open(database.value(), qs(u"料金設定"));
  ASSERT_TRUE(rows.ok());
  ASSERT_TRUE(rows->addNew().ok());
  for (const auto& [column, fee] : fees())
    ASSERT_TRUE(rows->setValue(column, fee).ok()) << column.toStdString();
  ASSERT_TRUE(rows->update().ok());
}

}  // namespace

std::unique_ptr<QTemporaryDir> ClaimFormTest::s_files;

void ClaimFormTest::SetUpTestSuite() {
  s_files = std::make_unique<QTemporaryDir>();
  for (const auto& [entry, name] : kFiles)
    ASSERT_TRUE(store::createFresh(s_files->filePath(qs(name)), qs(name)).ok());
  for (const char16_t* name : kFeeFiles) makeFees(s_files->filePath(qs(name)), qs(name));
}

void ClaimFormTest::SetUp() {
  ASSERT_TRUE(m_folder.isValid());
  const QFileInfoList files = QDir(s_files->path()).entryInfoList(QDir::Files);
  for (const QFileInfo& file : files) ASSERT_TRUE(QFile::copy(file.filePath(), path(file.fileName())));
  for (const auto& [entry, name] : kFiles) m_run.folders[size_t(entry)] = path(qs(name));
  m_run.programFolder = m_folder.path();
  m_run.folders[frame::folder::kFees] = path(qs(u"料金設定2000.mdb"));
  m_run.folders[frame::folder::kPictures] = m_folder.path();
  m_run.clock = &m_clock;
  m_run.prefectureCode = qs(u"27");
  m_messages.answerFromQueue();
  m_state.printing = &m_printing;
}

ClaimRecord ClaimFormTest::acupuncture() {
  ClaimRecord claim;
  const std::pair<const char16_t*, const char16_t*> columns[] = {{u"施術内容", u"鍼灸"},
                                                                 {u"申請年月", u"令和6年10月"},
                                                                 {u"申請月", u"10"},
                                                                 {u"請求回数", u"3"},
                                                                 {u"氏名", u"見本 太郎"},
                                                                 {u"番号1", u"P0001"},
                                                                 {u"保険の種類", u"国保"},
                                                                 {u"保険の種類3", u"国民健保"},
                                                                 {u"保険者名称", u"架空市"},
                                                                 {u"保険者番号", u"123456"},
                                                                 {u"一部負担金", u"3割"},
                                                                 {u"被保険者の氏名", u"見本 太郎"},
                                                                 {u"被保険者との続柄", u"本人"},
                                                                 {u"初療年月日", u"令和6年9月2日"},
                                                                 {u"請求区分", u"継続"},
                                                                 {u"転帰", u"継続"},
                                                                 {u"施術所の名称", u"見本治療院"},
                                                                 {u"代表者氏名", u"例示 代表"},
                                                                 {u"治療内容1", u"a"},
                                                                 {u"治療内容8", u"a"},
                                                                 {u"治療内容15", u"e"}};
  for (const auto& [column, value] : columns) claim.setNamed(qs(column), qs(value));
  return claim;
}

ClaimRecord ClaimFormTest::massage() {
  ClaimRecord claim = acupuncture();
  claim.setNamed(qs(u"施術内容"), qs(u"あマ"));
  claim.setNamed(qs(u"一部負担金"), qs(u"1割"));
  claim.setNamed(qs(u"治療内容1"), qs(u"g2"));
  claim.setNamed(qs(u"治療内容8"), qs(u"g2"));
  claim.clear(claim::dayCode[15]);
  return claim;
}

ClaimFile ClaimFormTest::file() {
  auto opened = ClaimFile::open(m_run.folders);
  EXPECT_TRUE(opened.ok());
  return std::move(opened.value());
}

qint64 ClaimFormTest::add(const ClaimRecord& claim) {
  const auto id = file().add(claim);
  EXPECT_TRUE(id.ok()) << (id ? "" : id.fault().message.toStdString());
  return id ? id.value() : 0;
}

ClaimRecord ClaimFormTest::stored(qint64 id) {
  const auto claim = file().read(id);
  EXPECT_TRUE(claim.ok());
  return claim ? claim.value() : ClaimRecord();
}

ClaimFormScreen& ClaimFormTest::open(qint64 id, std::optional<screen::ScreenName> opener) {
  if (!m_form) {
    m_form = std::make_unique<ClaimFormScreen>(m_services, m_run, m_state);
    m_form->onLoad();
    m_navigator.screens.insert(qs(u"frmレセプトフォーム"), m_form.get());
  }
  m_form->opened(routes::ClaimForm{.id = id, .opener = opener});
  return *m_form;
}

void ClaimFormTest::goTo(const QString& control) {
  m_form->show();
  QApplication::setActiveWindow(m_form.get());
  m_form->focusOn(control);
}

void ClaimFormTest::type(const QString& control, const QString& text) {
  if (auto* line = m_form->findChild<QLineEdit*>(control)) return line->setText(text);
  if (auto* memo = m_form->findChild<QPlainTextEdit*>(control)) return memo->setPlainText(text);
  FAIL() << "no field " << control.toStdString();
}

void ClaimFormTest::choose(const QString& combo, const QString& text) {
  auto* box = m_form->findChild<QComboBox*>(combo);
  ASSERT_NE(box, nullptr) << combo.toStdString();
  box->setEditText(text);
}

void ClaimFormTest::toggle(const QString& control) {
  auto* button = m_form->findChild<QAbstractButton*>(control);
  ASSERT_NE(button, nullptr) << control.toStdString();
  button->toggle();
}

QStringList ClaimFormTest::told() {
  const QStringList texts = m_messages.texts();
  m_messages.forget();
  return texts;
}

}  // namespace claims

#include "claims/screens/register_screen.h"

#include "claims/screens/register_rows.h"
#include "frame/core/routes.h"
#include "platform/screen/find_row.h"
#include "platform/store/criteria_text.h"
#include "platform/text/utf16.h"

namespace claims {

using namespace Qt::StringLiterals;
using ::text::utf16;

namespace {

constexpr char16_t kUseCloseButton[] = u"「閉じる」ボタンより終了して下さい";
constexpr char16_t kDiscardQuestion[] = u"登録されていません。入力した内容を捨てますか？";
constexpr char16_t kNothingToCopy[] = u"代入するデータがありません。";
constexpr char16_t kNoClaim[] = u"保険申請の画面が開かれていないため、代入できません。";

/// Results, spoken when the work is done.
constexpr char16_t kOffered[] = u"保険申請の内容を新規に代入しました。登録ボタンを押すと登録します";
constexpr char16_t kCopied[] = u"保険申請に代入しました。保険申請の登録ボタンを押して下さい";

constexpr screen::ScreenRow kDoctors = screen::declare({.name = routes::DoctorRegister::screen,
                                                        .caption = u"同意医師の登録",
                                                        .rows = register_rows::kDoctorRows,
                                                        .sources = doctors::table,
                                                        .functionKeys = true});
constexpr screen::ScreenRow kInsurers = screen::declare({.name = routes::InsurerRegister::screen,
                                                         .caption = u"保険者登録",
                                                         .rows = register_rows::kInsurerRows,
                                                         .sources = insurers::table,
                                                         .functionKeys = true});

/// A control that both screens have.
consteval screen::ControlRef both(const char16_t* name) {
  screen::ref(register_rows::kDoctorRows, name);
  return screen::ref(register_rows::kInsurerRows, name);
}
constexpr screen::ControlRef kGrid = both(u"DBGrid1");
constexpr screen::ControlRef kKey = both(u"Combo1");
constexpr screen::ControlRef kWanted = both(u"Text1");
constexpr screen::FamilyRef kFields = screen::family(register_rows::kDoctorRows, u"txtFields");

/// Whether the row agrees with the claim; what the claim leaves blank does not count.
bool agree(const QStringList& claim, const QStringList& row) {
  for (qsizetype i = 0; i < claim.size(); ++i)
    if (!claim[i].isEmpty() && claim[i] != row[i]) return false;
  return true;
}

}  // namespace

const RegisterForm kDoctorRegisterForm{
    kDoctors,
    kDoctorRegister,
    {.deleteQuestion = u"　同意医師のデータを削除します", .discardQuestion = kDiscardQuestion}};
const RegisterForm kInsurerRegisterForm{
    kInsurers,
    kInsurerRegister,
    {.deleteQuestion = u"　保険者のデータを削除します", .discardQuestion = kDiscardQuestion}};

RegisterScreen::RegisterScreen(const RegisterForm& form, screen::Services& services, frame::RunState& run,
                               ClaimsState& state)
    : RecordScreen(form.declaration, services, form.words), m_list(form.list), m_run(run), m_state(state) {}

void RegisterScreen::onLoad() {
  setText(kKey, m_list.keys.front());
  source().open(m_run.folders[size_t(m_list.folder)]);
}

void RegisterScreen::opened(const screen::Request& request) {
  const auto* doctors = request.as<routes::DoctorRegister>();
  const auto* insurers = request.as<routes::InsurerRegister>();
  m_fromClaim = (doctors && doctors->fromClaim) || (insurers && insurers->fromClaim);
  if (m_fromClaim && m_state.display != nullptr && source().isOpen() && !source().pending()) takeFromClaim();
}

// ---- The row on view ----

QStringList RegisterScreen::texts() const {
  QStringList texts;
  for (int i = 0; i < int(m_list.fields.size()); ++i) texts << text(kFields[i]);
  return texts;
}

QString RegisterScreen::count() const {
  return u"%1件"_s.arg(source().isOpen() ? source().rows().recordCount() : 0);
}

QStringList RegisterScreen::rowInWords() const {
  if (!source().hasCurrentRow()) return {count()};
  return {caption(kFields[0]), text(kFields[0])};
}

void RegisterScreen::sayStored() { say({utf16(words().stored), text(kFields[0])}); }

// After a deletion: how many are left, and the one that is on view now.
void RegisterScreen::sayDone(const QString& done) { say({done, count(), text(kFields[0])}); }

bool RegisterScreen::mayLeaveRow() {
  if (!source().pending()) return true;
  if (!source().rows().adding() || texts() != m_offered) return RecordScreen::mayLeaveRow();
  source().drop();  // nothing was typed into the new row
  return true;
}

bool RegisterScreen::offerNew(const QStringList& texts) {
  if (!source().addNew()) return false;
  m_offered = texts;
  for (int i = 0; i < int(texts.size()); ++i) setText(kFields[i], texts[i]);
  focusOn(kFields[0]);
  return true;
}

void RegisterScreen::startNew() {
  if (!source().ensureOpen()) return;
  // Typed before 新規 into a register without rows: the new row begins with it.
  if (!source().hasCurrentRow() && source().pending()) {
    m_offered.clear();
    if (source().addNewAsShown()) focusOn(kFields[0]);
    return;
  }
  offerNew(QStringList(qsizetype(m_list.fields.size()), QString()));
}

bool RegisterScreen::readyToStore() {
  const int blank = firstBlank(texts());
  if (blank < 0) return true;
  messages().tell(blankFieldText(utf16(m_list.fields[size_t(blank)].label)));
  focusOn(kFields[blank]);
  return false;
}

// ---- Search ----

std::optional<store::RecordSet> RegisterScreen::wholeRegister() {
  auto rows = store::RecordSet::open(source().rows().database(), utf16(m_list.table.name()));
  if (rows) return std::move(*rows);
  messages().tellDataFault(rows.fault().message);
  return std::nullopt;
}

void RegisterScreen::search() {
  if (!source().ensureOpen() || !mayLeaveRow()) return;
  auto rows = wholeRegister();
  if (!rows) return;
  if (const QString word = text(kWanted); !word.isEmpty()) {
    rows->setFilter(store::likeCriterion(text(kKey), word));
    auto hits = rows->openRecordset();
    if (!hits) return messages().tellDataFault(hits.fault().message);
    if (hits->recordCount() == 0) return screen::tellNotFound(*this);
    *rows = std::move(*hits);
  }
  source().assign(std::move(*rows));
  focusOn(kGrid);
  voice().speakText(QStringList{count(), text(kFields[0])}.join(voice::kSpeechSeparator));
}

// ---- The claim ----

void RegisterScreen::takeFromClaim() {
  const ClaimRecord claim = m_state.display->record();
  QStringList values;
  for (const RegisterField& each : m_list.fields) values << claim.get(each.claimColumn);
  if (values[0].trimmed().isEmpty()) return;
  auto whole = wholeRegister();
  if (!whole) return;
  source().assign(std::move(*whole));  // not the hits of a search
  store::RecordSet& rows = source().rows();
  for (int position = 0; position < rows.recordCount(); ++position) {
    // A register that was not read to its end offers nothing new: the row may be in it.
    const auto name = rows.readAt(position, m_list.fields[0].column);
    if (!name) return messages().tellDataFault(name.fault().message);
    if (*name != values[0]) continue;
    if (!source().moveTo(position)) return;
    if (agree(values, texts())) return;
  }
  if (offerNew(values)) voice().speakText(utf16(kOffered));
}

// Neither of the form's dirty marks is touched: the user stores the claim there.
void RegisterScreen::copyToClaim() {
  const QStringList values = texts();
  if (values.join(QString()).trimmed().isEmpty()) return messages().tell(utf16(kNothingToCopy));
  if (m_state.display == nullptr) return messages().tell(utf16(kNoClaim));
  for (qsizetype i = 0; i < values.size(); ++i)
    m_state.display->put(m_list.fields[size_t(i)].claimColumn, values[i]);
  voice().speakText(values[0] + voice::kSpeechSeparator + utf16(kCopied));
}

// ---- Leaving ----

void RegisterScreen::finish() {
  if (source().isOpen() && !mayLeaveRow()) return;
  if (m_fromClaim && navigator().isShown(routes::ClaimForm::screen))
    navigator().show(routes::ClaimForm::screen);
  navigator().unload(objectName());
}

bool RegisterScreen::onCloseBox() {
  messages().tell(utf16(kUseCloseButton));
  return false;
}

}  // namespace claims

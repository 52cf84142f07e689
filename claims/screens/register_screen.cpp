#include "claims/screens/register_screen.h"

#include "platform/screen/find_row.h"
#include "platform/store/criteria_text.h"

namespace claims {

using namespace Qt::StringLiterals;

namespace {

const QString kForm = u"frmレセプトフォーム"_s;

constexpr char16_t kNothingToDelete[] = u"削除するデータがありません。";
constexpr char16_t kUseCloseButton[] = u"「閉じる」ボタンより終了して下さい";
constexpr char16_t kDiscardQuestion[] = u"登録されていません。入力した内容を捨てますか？";
constexpr char16_t kNothingToCopy[] = u"代入するデータがありません。";
constexpr char16_t kNoClaim[] = u"保険申請の画面が開かれていないため、代入できません。";

/// Results, spoken when the work is done.
constexpr char16_t kStored[] = u"登録しました";
constexpr char16_t kDeleted[] = u"削除しました";
constexpr char16_t kOffered[] = u"保険申請の内容を新規に代入しました。登録ボタンを押すと登録します";
constexpr char16_t kCopied[] = u"保険申請に代入しました。保険申請の登録ボタンを押して下さい";

QString words(const char16_t* text) { return QString::fromUtf16(text); }
/// Whether the row holds what the claim tells; what the claim leaves blank does not count.
bool agree(const QStringList& claim, const QStringList& row) {
  for (qsizetype i = 0; i < claim.size(); ++i)
    if (!claim[i].isEmpty() && claim[i] != row[i]) return false;
  return true;
}

QString field(qsizetype index) { return u"txtFields(%1)"_s.arg(index); }

}  // namespace

RegisterScreen::RegisterScreen(const screen::ScreenRow& declaration, const Register& list,
                               screen::Services& services, frame::RunState& run, ClaimsState& state)
    : Screen(declaration, services), m_list(list), m_run(run), m_state(state) {
  source().onLeaveRow = [this] { return leaveRow(); };
}

void RegisterScreen::onLoad() {
  setText(u"Combo1"_s, words(m_list.keys.front()));
  source().open(m_run.folders[size_t(m_list.folder)]);
}

void RegisterScreen::opened(const screen::Request& request) {
  m_fromClaim = request.contains(u"ID"_s);
  if (m_fromClaim && m_state.display != nullptr && source().isOpen() && !source().pending()) takeFromClaim();
}

// ---- The row on view ----

QStringList RegisterScreen::texts() const {
  QStringList texts;
  for (size_t i = 0; i < m_list.fields.size(); ++i) texts << text(field(qsizetype(i)));
  return texts;
}

QStringList RegisterScreen::onView() const {
  return {u"%1件"_s.arg(source().isOpen() ? source().rows().recordCount() : 0), text(field(0))};
}

bool RegisterScreen::leaveRow() {
  if (!source().pending()) return true;
  const bool untouched = source().rows().adding() && texts() == m_offered;
  if (!untouched && !messages().askToDrop(words(kDiscardQuestion))) return false;
  source().drop();
  return true;
}

void RegisterScreen::step(void (screen::DataSource::*move)()) {
  (source().*move)();
  voice().speakHeading({caption(field(0)), text(field(0))});
}

void RegisterScreen::goFirst() { step(&screen::DataSource::moveFirst); }
void RegisterScreen::goPrevious() { step(&screen::DataSource::movePrevious); }
void RegisterScreen::goNext() { step(&screen::DataSource::moveNext); }
void RegisterScreen::goLast() { step(&screen::DataSource::moveLast); }

bool RegisterScreen::offerNew(const QStringList& texts) {
  if (!source().addNew()) return false;
  m_offered = texts;
  for (qsizetype i = 0; i < texts.size(); ++i) setText(field(i), texts[i]);
  focusOn(field(0));
  return true;
}

void RegisterScreen::startNew() {
  if (!source().ready()) return;
  // Typed before 新規 into a register without rows: it is what the new row is to hold.
  if (!source().holdsRow() && source().pending()) {
    m_offered.clear();
    if (source().addNewAsShown()) focusOn(field(0));
    return;
  }
  offerNew(QStringList(qsizetype(m_list.fields.size()), QString()));
}

void RegisterScreen::store() {
  if (!source().ready()) return;
  if (const int blank = firstBlank(texts()); blank >= 0) {
    messages().tell(blankFieldText(words(m_list.fields[size_t(blank)].label)));
    return focusOn(field(blank));
  }
  if ((!source().holdsRow() && !source().addNewAsShown()) || !source().write()) return;
  voice().speakText(words(kStored) + voice::kSpeechSeparator + text(field(0)));
}

void RegisterScreen::remove() {
  if (!source().ready()) return;
  if (!source().holdsRow()) return messages().tell(words(kNothingToDelete));
  if (!messages().ask(words(m_list.deleteQuestion))) return;
  if (source().rows().adding())  // it was never stored
    source().drop();
  else if (!source().remove())
    return;
  voice().speakText((QStringList{words(kDeleted)} + onView()).join(voice::kSpeechSeparator));
}

// ---- Search ----

std::optional<store::RecordSet> RegisterScreen::wholeRegister() {
  auto rows = store::RecordSet::open(source().rows().database(), words(m_list.table));
  if (rows) return std::move(*rows);
  messages().tellDataFault(rows.fault().message);
  return std::nullopt;
}

void RegisterScreen::search() {
  if (!source().ready() || !leaveRow()) return;
  auto rows = wholeRegister();
  if (!rows) return;
  if (const QString word = text(u"Text1"_s); !word.isEmpty()) {
    rows->setFilter(store::likeCriterion(text(u"Combo1"_s), word));
    auto hits = rows->openRecordset();
    if (!hits) return messages().tellDataFault(hits.fault().message);
    if (hits->recordCount() == 0) return screen::tellNotFound(*this);
    *rows = std::move(*hits);
  }
  source().assign(std::move(*rows));
  focusOn(u"DBGrid1"_s);
  voice().speakText(onView().join(voice::kSpeechSeparator));
}

// ---- The claim ----

void RegisterScreen::takeFromClaim() {
  const ClaimRecord claim = m_state.display->record();
  QStringList values;
  for (const RegisterField& each : m_list.fields) values << claim.get(words(each.claimColumn));
  if (values[0].trimmed().isEmpty()) return;
  if (auto whole = wholeRegister()) source().assign(std::move(*whole));  // not the hits of a search
  store::RecordSet& rows = source().rows();
  for (int position = 0; position < rows.recordCount(); ++position) {
    if (rows.valueAt(position, words(m_list.fields[0].column)) != values[0]) continue;
    source().moveTo(position);
    if (agree(values, texts())) return;
  }
  if (offerNew(values)) voice().speakText(words(kOffered));
}

// Neither of the form's dirty marks is touched: the user stores the claim there.
void RegisterScreen::copyToClaim() {
  const QStringList values = texts();
  if (values.join(QString()).trimmed().isEmpty()) return messages().tell(words(kNothingToCopy));
  if (m_state.display == nullptr) return messages().tell(words(kNoClaim));
  for (qsizetype i = 0; i < values.size(); ++i)
    m_state.display->put(words(m_list.fields[size_t(i)].claimColumn), values[i]);
  voice().speakText(values[0] + voice::kSpeechSeparator + words(kCopied));
}

// ---- Leaving ----

void RegisterScreen::finish() {
  if (source().isOpen() && !leaveRow()) return;
  if (m_fromClaim && navigator().isShown(kForm)) navigator().show(kForm);
  navigator().unload(objectName());
}

bool RegisterScreen::onCloseBox() {
  messages().tell(words(kUseCloseButton));
  return false;
}

}  // namespace claims

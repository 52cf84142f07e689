#include "records/screens/dictionary.h"

#include <algorithm>

#include "platform/screen/control_book.h"
#include "platform/shell/desktop.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kEntry = u"txtFields(0)"_s;

constexpr char16_t kDeleteTitle[] = u"削除";
constexpr char16_t kDeleteQuestion[] = u"表示のデ－タの削除をしてもいいですか？";
constexpr char16_t kNothingToDelete[] = u"削除するデータがありません。";
constexpr char16_t kDiscardQuestion[] = u"更新出来ませんでした。入力した内容を捨てて、閉じますか？";

/// Results, spoken when the work is done.
constexpr char16_t kStored[] = u"更新しました";
constexpr char16_t kDeleted[] = u"削除しました";
constexpr char16_t kCopied[] = u"クリップボードにコピーしました";
constexpr char16_t kNothingToCopy[] = u"コピーする文字がありません";

}  // namespace

DictionaryScreen::DictionaryScreen(const DictionaryRow& row, screen::Services& services, frame::RunState& run)
    : Screen(row.screen, services), m_row(row), m_run(run) {
  source().onLeaveRow = [this] { return leaveRow(); };
}

void DictionaryScreen::onLoad() { source().open(m_run.folders[m_row.folder]); }

QString DictionaryScreen::entry() const { return text(kEntry); }

void DictionaryScreen::askForEntry() {
  focusOn(kEntry);
  say({QString::fromUtf16(m_row.newRow)});
}

// ---- Moves ----

bool DictionaryScreen::leaveRow() {
  if (!source().holdsRow()) return true;
  if (!blankNewRow()) return source().write();
  source().drop();
  return true;
}

bool DictionaryScreen::blankNewRow() {
  if (!source().rows().adding()) return false;
  for (const screen::Control* control : controls().boundTo(1))
    if (control->changed() && !control->text().trimmed().isEmpty()) return false;
  return true;
}

void DictionaryScreen::step(void (screen::DataSource::*move)()) {
  const store::Bookmark before = source().rows().bookmark();
  (source().*move)();
  if (source().rows().bookmark() != before) rowReached();
  voice().speakHeading(onView());
}

void DictionaryScreen::goFirst() { step(&screen::DataSource::moveFirst); }
void DictionaryScreen::goPrevious() { step(&screen::DataSource::movePrevious); }
void DictionaryScreen::goNext() { step(&screen::DataSource::moveNext); }
void DictionaryScreen::goLast() { step(&screen::DataSource::moveLast); }

// ---- The row on view ----

// The row just stored stays on view. What was typed into a table without rows becomes its first.
void DictionaryScreen::store() {
  if (!source().ready()) return;
  if (blankNewRow()) return askForEntry();
  if ((!source().holdsRow() && !source().addNewAsShown()) || !source().write()) return;
  say(QStringList{QString::fromUtf16(kStored)} + onView());
}

void DictionaryScreen::remove() {
  if (!source().ready()) return;
  if (!source().holdsRow()) return messages().tell(QString::fromUtf16(kNothingToDelete));
  if (!messages().ask(QString::fromUtf16(kDeleteQuestion), screen::Buttons::OkCancel,
                      QString::fromUtf16(kDeleteTitle)))
    return;
  store::RecordSet& rows = source().rows();
  if (rows.adding()) {  // it was never stored
    source().drop();
  } else {
    const int position = rows.absolutePosition();
    if (!source().remove()) return;
    if (rows.recordCount() > 0) source().moveTo(std::min(position, rows.recordCount() - 1));
  }
  say(QStringList{QString::fromUtf16(kDeleted)} + onView());
}

void DictionaryScreen::copyEntry() { services().desktop->copyText(entry()); }

void DictionaryScreen::copy() {
  copyEntry();
  say({entry(), QString::fromUtf16(entry().isEmpty() ? kNothingToCopy : kCopied)});
}

// ---- Leaving ----

void DictionaryScreen::finish() {
  if (source().isOpen() && !leaveRow()) {
    if (!messages().askToDrop(QString::fromUtf16(kDiscardQuestion))) return;
    source().drop();
  }
  navigator().unload(objectName());
}

// The chart closes its dictionaries with it: what was typed is stored then too.
void DictionaryScreen::onClosed() {
  if (source().isOpen()) leaveRow();
}

bool DictionaryScreen::onCloseBox() {
  finish();
  return false;
}

}  // namespace records

#include "records/screens/dictionary.h"

#include <algorithm>

#include "platform/screen/control_book.h"
#include "platform/shell/desktop.h"
#include "platform/text/utf16.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr screen::RecordWords kWords{
    .stored = u"更新しました",
    .deleteQuestion = u"表示のデ－タの削除をしてもいいですか？",
    .deleteTitle = u"削除",
    .discardQuestion = u"更新出来ませんでした。入力した内容を捨てて、閉じますか？"};

}  // namespace

DictionaryScreen::DictionaryScreen(const DictionaryRow& row, screen::Services& services, frame::RunState& run)
    : RecordScreen(row.screen, services, kWords), m_row(row), m_run(run) {}

void DictionaryScreen::onLoad() { source().open(m_run.folders[m_row.folder]); }

QString DictionaryScreen::entry() const { return text(m_row.entry); }

void DictionaryScreen::askForEntry() {
  focusOn(m_row.entry);
  say({text::utf16(m_row.newRow)});
}

// ---- The row on view ----

bool DictionaryScreen::mayLeaveRow() {
  if (!source().hasCurrentRow()) return true;
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

bool DictionaryScreen::readyToStore() {
  if (!blankNewRow()) return true;
  askForEntry();
  return false;
}

bool DictionaryScreen::removeOnView() {
  const store::RecordSet& rows = source().rows();
  const bool stored = !rows.adding();
  const int position = rows.absolutePosition();
  if (!RecordScreen::removeOnView()) return false;
  if (stored && rows.recordCount() > 0) source().moveTo(std::min(position, rows.recordCount() - 1));
  return true;
}

void DictionaryScreen::copyEntry() { services().desktop->copyText(entry()); }

void DictionaryScreen::copy() {
  copyEntry();
  say({entry(), entry().isEmpty() ? u"コピーする文字がありません"_s : u"クリップボードにコピーしました"_s});
}

// ---- Leaving ----

void DictionaryScreen::finish() {
  if (mayClose()) navigator().unload(objectName());
}

// When the chart closes its dictionaries, what was typed is stored too.
void DictionaryScreen::onClosed() {
  if (source().isOpen()) mayLeaveRow();
}

bool DictionaryScreen::onCloseBox() {
  finish();
  return false;
}

}  // namespace records

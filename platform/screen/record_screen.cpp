#include "platform/screen/record_screen.h"

#include "platform/text/utf16.h"

namespace screen {

RecordScreen::RecordScreen(const ScreenRow& declaration, Services& services, const RecordWords& words)
    : Screen(declaration, services), m_words(words) {
  source().onLeaveRow = [this] { return mayLeaveRow(); };
}

void RecordScreen::step(const RowMove& move) {
  if (!readyToMove()) return;
  const store::Bookmark before = source().rows().bookmark();
  moveRow(move);
  if (source().rows().bookmark() != before) rowReached();
  voice().speakHeading(rowInWords());
}

bool RecordScreen::mayDiscard() {
  return !source().pending() || messages().askToDrop(text::utf16(m_words.discardQuestion));
}

bool RecordScreen::mayLeaveRow() {
  if (!mayDiscard()) return false;
  source().drop();
  return true;
}

bool RecordScreen::mayClose() {
  if (!source().isOpen() || mayLeaveRow()) return true;
  if (!messages().askToDrop(QString::fromUtf16(m_words.discardQuestion))) return false;
  source().drop();
  return true;
}

bool RecordScreen::writeOnView() {
  return (source().hasCurrentRow() || source().addNewAsShown()) && source().write();
}

void RecordScreen::sayDone(const QString& done) { say(QStringList{done} + rowInWords()); }

void RecordScreen::storeRow() {
  if (source().ensureOpen() && readyToStore() && writeOnView()) sayStored();
}

bool RecordScreen::confirmRemoval() {
  const QString question = text::utf16(m_words.deleteQuestion);
  if (!m_words.deleteTitle) return messages().ask(question);
  return messages().ask(question, Buttons::OkCancel, text::utf16(m_words.deleteTitle));
}

bool RecordScreen::removeOnView() {
  if (!source().rows().adding()) return source().remove();
  source().drop();  // it was never stored
  return true;
}

void RecordScreen::removeRow() {
  if (!source().ensureOpen()) return;
  if (!source().hasCurrentRow()) {
    if (!m_words.nothingToDelete) return say(rowInWords());
    return messages().tell(text::utf16(m_words.nothingToDelete));
  }
  if (!confirmRemoval()) return;
  const bool stored = !source().rows().adding();
  if (removeOnView()) sayDone(text::utf16(stored ? m_words.deleted : m_words.dropped));
}

}  // namespace screen

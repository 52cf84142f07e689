#include "platform/screen/record_screen.h"

namespace screen {

RecordScreen::RecordScreen(const ScreenRow& declaration, Services& services, const RecordWords& words)
    : Screen(declaration, services), m_words(words) {
  source().onLeaveRow = [this] { return mayLeaveRow(); };
}

void RecordScreen::step(void (DataSource::*move)()) {
  const store::Bookmark before = source().rows().bookmark();
  (source().*move)();
  if (source().rows().bookmark() != before) rowReached();
  voice().speakHeading(rowInWords());
}

bool RecordScreen::mayDiscard() {
  return !source().pending() || messages().askToDrop(QString::fromUtf16(m_words.discardQuestion));
}

bool RecordScreen::mayLeaveRow() {
  if (!mayDiscard()) return false;
  source().drop();
  return true;
}

bool RecordScreen::writeOnView() {
  return (source().holdsRow() || source().addNewAsShown()) && source().write();
}

void RecordScreen::sayDone(const char16_t* done) {
  say(QStringList{QString::fromUtf16(done)} + rowInWords());
}

void RecordScreen::storeRow() {
  if (source().ready() && readyToStore() && writeOnView()) sayDone(m_words.stored);
}

bool RecordScreen::confirmRemoval() {
  const QString question = QString::fromUtf16(m_words.deleteQuestion);
  if (!m_words.deleteTitle) return messages().ask(question);
  return messages().ask(question, Buttons::OkCancel, QString::fromUtf16(m_words.deleteTitle));
}

bool RecordScreen::removeOnView() {
  if (!source().rows().adding()) return source().remove();
  source().drop();  // it was never stored
  return true;
}

void RecordScreen::removeRow() {
  if (!source().ready()) return;
  if (!source().holdsRow()) return messages().tell(QString::fromUtf16(m_words.nothingToDelete));
  if (confirmRemoval() && removeOnView()) sayDone(m_words.deleted);
}

}  // namespace screen

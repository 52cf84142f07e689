#include "platform/screen/list_screen.h"

#include "platform/screen/find_row.h"
#include "platform/screen/grid_model.h"

namespace screen {

ListScreen* listOf(Screen& dialog, const Words& list) {
  const QString name = QString::fromUtf16(list.get());
  auto* found = dynamic_cast<ListScreen*>(dialog.navigator().load(name));
  if (found == nullptr) qCritical("%s is no list", qUtf8Printable(name));
  return found;
}

bool ListScreen::emptySet(const QString& text) {
  if (!source().isOpen() && !openWhole()) return true;
  if (holdsRows()) return false;
  messages().tell(text);
  return true;
}

std::optional<store::RecordSet> ListScreen::setOf(const QString& criteria, const QString& order) {
  store::RecordSet& rows = source().rows();
  rows.setFilter(criteria);
  rows.setSort(order);
  auto set = rows.openRecordset();
  rows.setFilter(QString());
  rows.setSort(QString());
  if (set) return std::move(*set);
  messages().tellDataFault(set.fault().message);
  return std::nullopt;
}

bool ListScreen::put(const QString& criteria, const QString& order) {
  auto set = setOf(criteria, order);
  if (set) source().assign(std::move(*set));
  return set.has_value();
}

bool ListScreen::narrowBy(const QString& criteria) {
  return narrow(criteria, QStringLiteral("抽出しました"));
}

bool ListScreen::narrow(const QString& criteria, const QString& done) {
  if (emptySet()) return false;
  auto hits = setOf(criteria, QString());
  if (!hits) return false;
  if (hits->recordCount() == 0) {
    tellNotFound(*this);
    return false;
  }
  source().assign(std::move(*hits));
  setChanged(done);
  return true;
}

void ListScreen::tellResult(const QString& done) {
  sayResult(QStringList{done} + countOnView());
  focusOn(QStringLiteral("DBGrid1"));
}

void ListScreen::step(void (DataSource::*move)()) {
  (source().*move)();
  QStringList row = rowOnView();
  if (row.isEmpty()) return;
  if (source().isOpen() && source().rows().fault()) row = {QString::fromUtf16(kUnreadableText)};
  voice().speakHeading(row);
}

void ListScreen::goFirst() { step(&DataSource::moveFirst); }
void ListScreen::goPrevious() { step(&DataSource::movePrevious); }
void ListScreen::goNext() { step(&DataSource::moveNext); }
void ListScreen::goLast() { step(&DataSource::moveLast); }

bool ListScreen::sortBy(const QString& order) {
  if (emptySet(noRowsToSortText()) || !put(QString(), order)) return false;
  setChanged(QStringLiteral("並び替えました"));
  return true;
}

}  // namespace screen

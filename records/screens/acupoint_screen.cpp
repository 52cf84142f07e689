#include "records/screens/acupoint_screen.h"

#include <algorithm>

#include "platform/screen/find_row.h"
#include "platform/store/criteria_text.h"
#include "records/screens/acupoint_rows.h"

namespace records {

using namespace acupoint_rows;

namespace {

constexpr DictionaryRow kAcupoints{kDeclaration, kName, frame::folder::kAcupoints,
                                   u"新しい経穴を書き込んでから、更新ボタンを押してください"};

}  // namespace

AcupointScreen::AcupointScreen(screen::Services& services, frame::RunState& run)
    : DictionaryScreen(kAcupoints, services, run) {}

void AcupointScreen::onLoad() {
  setText(kKey, kKeys.front());
  DictionaryScreen::onLoad();
}

QStringList AcupointScreen::rowInWords() const { return {entry(), text(kKana)}; }

void AcupointScreen::add() {
  if (source().ensureOpen() && source().addNew()) askForEntry();
}

void AcupointScreen::search() {
  const QString word = text(kWord);
  if (word.isEmpty()) return askFor(kWord);
  if (!source().ensureOpen() || !mayLeaveRow()) return;
  const store::Column& key = kKeys.at(static_cast<size_t>(std::max(0, chosenItem(kKey))));
  if (!screen::findRow(*this, store::likeCriterion(key, word))) return;
  QStringList found = rowInWords();
  // The names of a point are heard anyway; the text that matched in another column is heard too.
  if (key != acupoints::name && key != acupoints::kana) found << key << source().rows().value(key);
  voice().speakHeading(found);
}

}  // namespace records

#include "records/screens/acupoint_screen.h"

#include "platform/screen/find_row.h"
#include "platform/store/criteria_text.h"
#include "records/screens/acupoint_rows.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

const DictionaryRow kAcupoints{kAcupointScreen, frame::folder::kAcupoints, u"経穴",
                               u"新しい経穴を書き込んでから、更新ボタンを押してください"};

}  // namespace

AcupointScreen::AcupointScreen(screen::Services& services, frame::RunState& run)
    : DictionaryScreen(kAcupoints, services, run) {}

void AcupointScreen::onLoad() {
  setText(u"Combo1"_s, QString::fromUtf16(kAcupointKeys.front()));
  DictionaryScreen::onLoad();
}

QStringList AcupointScreen::onView() const { return {entry(), text(u"txtFields(1)"_s)}; }

void AcupointScreen::add() {
  if (source().ensureOpen() && source().addNew()) askForEntry();
}

void AcupointScreen::search() {
  const QString word = text(u"Text1"_s), column = text(u"Combo1"_s);
  if (word.isEmpty()) return askFor(u"Text1"_s);
  if (!source().ensureOpen() || !leaveRow()) return;
  if (!screen::findRow(*this, store::likeCriterion(column, word))) return;
  QStringList found = onView();
  // Named points are heard by their names; of another column the place that matched is heard too.
  if (!column.startsWith(u"経穴名")) found << column << source().rows().value(column);
  voice().speakHeading(found);
}

}  // namespace records

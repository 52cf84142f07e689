#include "records/screens/visit_dialogs.h"

#include "frame/core/routes.h"
#include "platform/store/tables/visits.h"

namespace records {
namespace {

using namespace screen;

constexpr ColumnChoice kSearched[] = {
    visits::date, visits::summary,     visits::insurerPays, visits::share,
    visits::fee,  visits::receiptDone, visits::isNew,
};
constexpr Note kNotes[] = {
    // The sentence ends there on purpose.
    {.name = {u"Label1"},
     .caption =
         u"※１年分の場合は、左側を「治療日時」にして、この欄に「令和2年」と入力すると、令和2年のみ表示されます"
         u"。1ケ月分は、「令和2年1月」の",
     .spoken = true},
    {.name = {u"Label2"},
     .caption = u"※領収証チェックと新患は、Yes か No を入力して下さい。",
     .spoken = true},
};
constexpr ExtractRow kExtracts[] = {{.name = routes::SearchVisits::screen,
                                     .caption = u"カルテ2の抽出",
                                     .list = routes::VisitLedger::screen,
                                     .columns = kSearched,
                                     .wordCaption = u"抽出する文字:",
                                     .go = u"抽出",
                                     .notes = kNotes}};

constexpr ColumnChoice kSorted[] = {
    // Dates are sorted by their western shadow: era text does not sort.
    {visits::date.name(), visits::dateShadow},
    // On purpose: the table has no such column (it is 治療概略), and the database says so.
    ColumnChoice::missing(u"治療概要"),
    visits::insurerPays,
    visits::share,
    visits::fee,
};
constexpr SortRow kSorts[] = {
    {.name = routes::SortVisits::screen, .list = routes::VisitLedger::screen, .columns = kSorted}};

}  // namespace

std::span<const ExtractRow> visitExtractDialogs() { return kExtracts; }
std::span<const SortRow> visitSortDialogs() { return kSorts; }

}  // namespace records

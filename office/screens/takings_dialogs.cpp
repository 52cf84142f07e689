#include "office/screens/takings_dialogs.h"

#include "frame/core/routes.h"
#include "platform/store/tables/visits.h"

namespace office {
namespace {

using namespace screen;

constexpr ColumnChoice kSearched[] = {
    visits::name,  visits::birth, visits::date,        visits::summary, visits::insurerPays,
    visits::share, visits::fee,   visits::receiptDone, visits::isNew,
};
constexpr Note kNotes[] = {{.name = {u"Label1"},
                            .caption = u"※領収証チェックと新患は、Yes か No を入力して下さい。",
                            .spoken = true}};
constexpr ExtractRow kExtracts[] = {{.name = routes::SearchTakings::screen,
                                     .caption = u"集計抽出",
                                     .list = routes::Takings::screen,
                                     .columns = kSearched,
                                     .wordCaption = u"抽出する文字:",
                                     .go = u"抽出",
                                     .notes = kNotes}};

// Dates are sorted by their western shadow: era text does not sort.
constexpr ColumnChoice kSorted[] = {
    visits::name,    visits::birth,       {u"治療日時", visits::dateShadow},
    visits::summary, visits::insurerPays, visits::share,
    visits::fee,     visits::receiptDone, visits::isNew,
};
constexpr SortRow kSorts[] = {
    {.name = routes::SortTakings::screen, .list = routes::Takings::screen, .columns = kSorted}};

}  // namespace

std::span<const ExtractRow> takingsExtractDialogs() { return kExtracts; }
std::span<const SortRow> takingsSortDialogs() { return kSorts; }

}  // namespace office

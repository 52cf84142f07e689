#include "office/screens/takings_dialogs.h"

namespace office {
namespace {

using namespace screen;

constexpr ColumnChoice kSearched[] = {
    {u"氏名", u"氏名"},
    {u"生年月日", u"生年月日"},
    {u"治療日時", u"治療日時"},
    {u"治療概略", u"治療概略"},
    {u"保険者負担金", u"保険者負担金"},
    {u"保険の一部負担金", u"保険の一部負担金"},
    {u"治療金額", u"治療金額"},
    {u"領収証チェック", u"領収証チェック", true},
    {u"新患", u"新患", true},
};
constexpr Note kNotes[] = {{.name = {u"Label1"},
                            .caption = u"※領収証チェックと新患は、Yes か No を入力して下さい。",
                            .spoken = true}};
constexpr ExtractRow kExtracts[] = {{.name = u"集計抽出",
                                     .caption = u"集計抽出",
                                     .list = u"集計",
                                     .columns = kSearched,
                                     .wordCaption = u"抽出する文字:",
                                     .go = u"抽出",
                                     .notes = kNotes}};

// Dates are sorted by their western shadow: era text does not sort.
constexpr ColumnChoice kSorted[] = {
    {u"氏名", u"氏名"},
    {u"生年月日", u"生年月日"},
    {u"治療日時", u"治療日チェック"},
    {u"治療概略", u"治療概略"},
    {u"保険者負担金", u"保険者負担金"},
    {u"保険の一部負担金", u"保険の一部負担金"},
    {u"治療金額", u"治療金額"},
    {u"領収証チェック", u"領収証チェック"},
    {u"新患", u"新患"},
};
constexpr SortRow kSorts[] = {{.name = u"ソート2", .list = u"集計", .columns = kSorted}};

}  // namespace

std::span<const ExtractRow> takingsExtractDialogs() { return kExtracts; }
std::span<const SortRow> takingsSortDialogs() { return kSorts; }

}  // namespace office

#include "records/screens/patient_list_dialogs.h"

#include "frame/core/routes.h"
#include "records/core/patient_columns.h"

namespace records {
namespace {

using namespace screen;

constexpr auto kColumns = choicesOf(kPatientColumns);

constexpr ExtractRow kExtracts[] = {{.name = routes::SearchPatientList::screen,
                                     .caption = u"抽出",
                                     .list = routes::PatientList::screen,
                                     .columns = kColumns,
                                     .wordCaption = u"抽出する文字を書き込んで下さい",
                                     .go = u"検索及び抽出"}};

constexpr SortRow kSorts[] = {
    {.name = routes::SortPatients::screen, .list = routes::PatientList::screen, .columns = kColumns}};

}  // namespace

std::span<const ExtractRow> patientExtractDialogs() { return kExtracts; }
std::span<const SortRow> patientSortDialogs() { return kSorts; }

}  // namespace records

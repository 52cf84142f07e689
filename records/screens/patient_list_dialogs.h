#pragma once

#include "platform/screen/extract_dialog.h"
#include "platform/screen/sort_dialog.h"

namespace records {

/// 抽出2 and ソート1, the dialogs of the patient list that ask for one column.
std::span<const screen::ExtractRow> patientExtractDialogs();
std::span<const screen::SortRow> patientSortDialogs();

}  // namespace records

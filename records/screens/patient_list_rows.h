#pragma once

#include "platform/screen/extract_dialog.h"
#include "platform/screen/sort_dialog.h"

namespace records {

/// The declared screen 一覧表.
extern const screen::ScreenRow kPatientListDeclaration;

/// Its dialogs of one column: 抽出2 and ソート1.
std::span<const screen::ExtractRow> patientListExtractions();
std::span<const screen::SortRow> patientListSorts();

}  // namespace records

#pragma once

#include "platform/screen/extract_dialog.h"
#include "platform/screen/sort_dialog.h"

namespace office {

/// 集計抽出 and ソート2, the dialogs of 集計.
std::span<const screen::ExtractRow> takingsExtractDialogs();
std::span<const screen::SortRow> takingsSortDialogs();

}  // namespace office

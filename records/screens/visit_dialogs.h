#pragma once

#include "platform/screen/extract_dialog.h"
#include "platform/screen/sort_dialog.h"

namespace records {

/// カルテ2の抽出 and ソート5, the dialogs of the visit ledger.
std::span<const screen::ExtractRow> visitExtractDialogs();
std::span<const screen::SortRow> visitSortDialogs();

}  // namespace records

#pragma once

namespace store::source {

/// Statements of the closed query subset that rules open a Cursor with, so that their text stands here and
/// not in the rooms that ask.

/// Fee editions of a file, the ruling one first.
inline constexpr char16_t kFeesNewestFirst[] = u"SELECT * FROM 料金設定 ORDER BY ID desc";

}  // namespace store::source

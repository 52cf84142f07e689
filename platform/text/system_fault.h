#pragma once

#include <QString>

#include "platform/text/result.h"

namespace text {

enum class FileAction { Read, Write };

/// The fault of a file operation in the user's words: the file's name, what could not be done, the system's
/// reason, the whole path. `error` is the errno of the failed call; the voices read Japanese, so the reasons
/// that happen in a practice are translated, and only a rare one appears in the system's own words.
Fault systemFault(FileAction action, const QString& path, int error);

}  // namespace text

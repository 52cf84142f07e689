#pragma once

#include <QByteArray>
#include <QString>

#include "platform/text/result.h"

namespace text {

/// Small files that are read and written whole (settings, word history, one-record files). Faults name the
/// file and give the system's own reason.

Result<QByteArray> readWholeFile(const QString& path);

/// Written beside under another name, synced, renamed over the old file, and the folder synced: whoever
/// reads the path finds the old contents or the new, never a part, whatever happens in between. A link is
/// followed, so that the file it points to is the one replaced; the file's permissions stay.
Done writeWholeFile(const QString& path, const QByteArray& bytes);

}  // namespace text

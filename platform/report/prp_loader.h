#pragma once

#include <functional>

#include "platform/report/form.h"
#include "platform/text/result.h"

namespace report {

/// Deepest chain of bases: a form, its base, and two more.
inline constexpr int kMaxBases = 3;

/// Content of a template by file name; the fault says that there is none.
using ReadTemplate = std::function<text::Result<QString>(const QString& fileName)>;

/// Reads a template with its bases. The fault names file, line and what was expected there.
text::Result<FormPtr> parseForm(const QString& fileName, const ReadTemplate& read);

/// The same from the files of a folder. Templates are UTF-8.
text::Result<FormPtr> loadForm(const QString& folder, const QString& fileName);

}  // namespace report

#pragma once

#include <QString>

#include "platform/text/result.h"

namespace program {

/// Puts two rows into every file of a program folder that the user fills. A text column holds its own name
/// (in the second row with "２" after it), so that a control bound to another column is heard at once;
/// columns that rules or lists read hold plain values. Yes/no columns are ticked in turns.
text::Done addDemoRows(const QString& programFolder);

/// Fills the settings of the practice, its licences and its own captions: each text is "設定" and the number
/// of its field in qv.dat.
text::Done addDemoSettings(const QString& programFolder);

}  // namespace program

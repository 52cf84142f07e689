#pragma once

#include <QString>

namespace printing {

/// The question before a job, with OK and キャンセル, of the printing screen. Blank for a screen that prints
/// nothing through the engine.
QString promptOf(const QString& screen);

}  // namespace printing

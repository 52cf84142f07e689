#pragma once

#include <QString>

#include "platform/text/result.h"

namespace screen {

class DataSource;
class Screen;

/// Before a bound source moves away from its row: a pending edit is written, a new row that was not stored is
/// dropped. False: a fault was reported, the row stays.
bool commitOrDiscardRow(DataSource& source);

/// The search of findRow() without its messages: false where nothing was found, a fault where the engine
/// refused the criteria or the row that was found cannot be read; either way the row on view stays.
text::Result<bool> seekRow(DataSource& source, const QString& criteria);

/// Moves the source to the next row that meets the criteria, from the row on view and round the end. Nothing
/// found is reported under the title "Not found", a fault of seekRow() in the engine's words; either way the
/// row on view stays and false is returned.
bool findRow(Screen& screen, const QString& criteria, int source = 1);

/// "該当がありません。" under the title "Not found".
void tellNotFound(Screen& screen);

}  // namespace screen

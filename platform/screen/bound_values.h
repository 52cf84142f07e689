#pragma once

#include <QHash>
#include <QString>
#include <initializer_list>

#include "platform/store/record_set.h"

namespace screen {

class Screen;

// The values of a screen's bound controls as a map of columns, for screens that read and write their rows
// as a whole and not by the sources.

/// What storing would write of the controls of the sources that differ from what was last shown.
QHash<QString, store::Value> changedValues(const Screen& screen, std::initializer_list<int> sources);

/// Shows the values in the controls of the sources, blank where the map has none; what is then shown counts
/// as unchanged. No handler runs.
void showValues(Screen& screen, const QHash<QString, store::Value>& values,
                std::initializer_list<int> sources);

}  // namespace screen

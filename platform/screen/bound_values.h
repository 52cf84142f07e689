#pragma once

#include <QHash>
#include <QString>
#include <initializer_list>

#include "platform/store/record_set.h"

// The values of a screen's bound controls as a map by column, for screens whose rows are read and written as
// a whole: a claim is two rows of two sources that are stored together.

namespace screen {

class Control;
class Screen;

/// Shows the values in the controls that are bound to the sources, blank where the map lacks the column, and
/// takes what is then shown as unchanged.
void showValues(Screen& screen, const QHash<QString, store::Value>& values,
                std::initializer_list<int> sources);

/// What the controls bound to the sources show in place of what showValues() put there, by column. Neither a
/// blank field that was NULL nor a group of options without a choice is among it; a field that was cleared is
/// blank, not NULL.
QHash<QString, store::Value> changedValues(const Screen& screen, std::initializer_list<int> sources);

/// The control of the sources that is bound to a column; nullptr: none is.
Control* controlOf(const Screen& screen, const QString& column, std::initializer_list<int> sources);

}  // namespace screen

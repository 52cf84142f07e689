#pragma once

#include "platform/store/record_field.h"

namespace screen {

class Screen;

/// What the control shows that is bound to the column, stored or not. A column that no control is bound to
/// is a mistake of the program, reported as critical.
QString shownText(const Screen& screen, const store::Column& column);

/// A struct with what the bound controls show of its columns.
template <class Record>
Record shownRecord(const Screen& screen) {
  Record record;
  for (const store::Field<Record>& field : Record::fields())
    record.*(field.text) = shownText(screen, field.column);
  return record;
}

}  // namespace screen

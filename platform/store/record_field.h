#pragma once

#include <QString>
#include <span>

#include "platform/store/record_set.h"

namespace store {

/// A column of a table and the member of a struct that holds its text. A struct that stands for a row lists
/// them once in a function `fields()`; readRecord() and writeRecord() go by that list.
template <class Record>
struct Field {
  Column column;
  QString Record::*text;
};

/// The current row of a set as a struct.
template <class Record>
Record readRecord(const RecordSet& rows) {
  Record record;
  for (const Field<Record>& field : Record::fields()) record.*(field.text) = rows.value(field.column);
  return record;
}

/// Puts a struct into the row buffer of a set that is being edited or added to.
template <class Record>
Done writeRecord(RecordSet& rows, const Record& record) {
  for (const Field<Record>& field : Record::fields())
    if (const Done done = rows.setValue(field.column, record.*(field.text)); !done) return done;
  return {};
}

}  // namespace store

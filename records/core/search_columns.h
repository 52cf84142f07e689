#pragma once

#include <QString>
#include <span>

#include "platform/store/column.h"

namespace records {

/// A column that the patient table can be searched by: the caption in the list and the column.
struct SearchColumn {
  QString caption;
  store::Column column;
};

/// What the search row of the patient screen offers, in the order of its list: the columns of the patient
/// list, with ID before and the columns 治療 and メモ1 after them. The kana have a caption of their own.
std::span<const SearchColumn> searchColumns();
/// The name of the column that has the caption in the list; null if the list has no such caption.
QString columnOfCaption(const QString& caption);

}  // namespace records

#pragma once

#include <QString>
#include <QStringView>
#include <span>

#include "platform/store/column.h"

namespace records {

/// A column that the patient table can be searched by: the caption in the list and the column's name.
struct SearchColumn {
  QStringView caption;
  store::Column column;
  /// Under its own name.
  constexpr SearchColumn(const store::Column& own) : caption(own.name()), column(own) {}
  constexpr SearchColumn(const char16_t* text, const store::Column& of) : caption(text), column(of) {}
};

/// The columns in the order of the list on the patient screen.
std::span<const SearchColumn> searchColumns();
/// The column behind a caption of the list; blank where the list has no such caption.
QString columnOfCaption(const QString& caption);

}  // namespace records

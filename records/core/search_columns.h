#pragma once

#include <QString>
#include <QStringView>
#include <span>

namespace records {

/// A column that the patient table can be searched by: the caption in the list and the column's name.
struct SearchColumn {
  QStringView caption;
  QStringView column;
};

/// The columns in the order of the list on the patient screen.
std::span<const SearchColumn> searchColumns();
/// The column behind a caption of the list; blank where the list has no such caption.
QString columnOfCaption(const QString& caption);

}  // namespace records

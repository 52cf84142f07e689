#pragma once

#include <optional>

#include "platform/screen/builder.h"
#include "platform/screen/layout.h"

namespace screen {

/// Where the builder puts controls at present: fields in columns, or a row that wraps.
struct Builder::Place {
  explicit Place(Shelf shelf) : columns(shelf) {}
  explicit Place(Flow flow) : row(flow) {}

  QWidget* host() const { return columns ? columns->host() : row->host(); }
  void close() {
    if (columns) columns->close();
  }
  void addField(QLabel* label, QWidget* field, bool wide);
  void addSingle(QWidget* widget);
  void addWide(QWidget* widget, bool grows);

  std::optional<Shelf> columns;
  std::optional<Flow> row;
  QString outerGroup;  ///< caption of the group around this place
};

}  // namespace screen

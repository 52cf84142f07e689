#pragma once

#include <functional>
#include <vector>

#include "platform/store/engine.h"

namespace store {

/// Tells the columns of the rows with the IDs, which ascend, as the file holds them at one moment. IDs that
/// do not stand are passed over. One pass over the table where many of its rows are asked for, else from one
/// row to the next.
Done walkRows(Engine& engine, const TableSchema& schema, const std::vector<qint64>& ids,
              const QVector<int>& columns, const std::function<void(qint64 id, RowViews values)>& each);

}  // namespace store

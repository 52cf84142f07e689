#pragma once

#include <span>
#include <vector>

#include "platform/store/criteria.h"
#include "platform/store/engine.h"

namespace store {

/// IDs of the rows of the table that fit all the criteria, in the order; where that is empty, in the order
/// behind the criteria, else by ID.
Result<std::vector<qint64>> selectRows(Engine& engine, const QString& table, std::span<const Criteria> all,
                                       const Order& order = {});

}  // namespace store

#pragma once

#include <span>
#include <vector>

#include "platform/store/criteria.h"
#include "platform/store/engine.h"
#include "platform/store/row_list.h"

namespace store {

/// The rows of the table that fit all the criteria, in the order; where that is empty, in the order behind
/// the criteria, else by ID.
Result<RowList> selectRows(Engine& engine, const QString& table, std::span<const Criteria> all,
                           const Order& order = {});

}  // namespace store

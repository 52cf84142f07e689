#pragma once

#include <QString>
#include <array>
#include <optional>

#include "claims/core/fee.h"

namespace claims {

/// FeeEdition: the ruling row of one fee file, whole yen. An empty column has no value and counts as 0.
class FeeEdition {
 public:
  std::optional<int> value(Fee fee) const { return m_values[index(fee)]; }
  int yen(Fee fee) const { return value(fee).value_or(0); }
  void set(Fee fee, std::optional<int> yen) { m_values[index(fee)] = yen; }

  QString path;   ///< the file it was read from
  qint64 id = 0;  ///< ID of the row

 private:
  static size_t index(Fee fee) { return static_cast<size_t>(fee); }
  std::array<std::optional<int>, kFees.size()> m_values;
};

}  // namespace claims

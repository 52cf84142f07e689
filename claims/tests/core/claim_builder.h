#pragma once

#include <initializer_list>

#include "claims/core/claim_record.h"
#include "claims/core/fee_source.h"
#include "frame/core/era_date.h"

namespace claims::testing {

/// A column and its value, for the odd columns of a test claim.
struct Set {
  const char16_t* column;
  const char16_t* value;
};

/// A claim with a month, kind, share and grid. The grid is written "1=a 2-4=b 5=g2h1/v3": day or days, code,
/// and behind a slash the visit.
ClaimRecord makeClaim(const char16_t* month, const char16_t* kind, const char16_t* share,
                      const char16_t* grid, std::initializer_list<Set> columns = {});
/// Fills a claim's grid from the same writing.
void setGrid(ClaimRecord& claim, const char16_t* grid);

/// Era operations of a platform that knows 令和, on a fixed day.
const frame::EraDates& era();

/// The fee editions of data/fees/editions.csv: the ruling row of a file name is the one with the highest ID.
class CsvFees final : public FeeSource {
 public:
  text::Result<FeeEdition> load(const QString& path) override;
};

}  // namespace claims::testing

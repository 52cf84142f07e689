#pragma once

#include <gtest/gtest.h>

#include <string>

#include "claims/tests/core/claim_builder.h"

namespace claims::testing {

/// A whole claim and what it comes out to at store.
struct FullClaim {
  const char* name;
  ClaimRecord claim;
  qint64 total;
  qint64 share;
  const char16_t* subject;  ///< 施術科目
};

/// Stores the claim with the editions of data/fees and compares sums and columns.
void expectStored(const FullClaim& row);

std::string nameOf(const ::testing::TestParamInfo<FullClaim>& info);

}  // namespace claims::testing

#pragma once

#include <QString>

#include "platform/store/record_set.h"

namespace store {

/// The four runs by which the tables of an older file get the columns that came after the first schema. The
/// claim runs both grow the second half of the claims.
enum class GrowthRun {
  Patient,  ///< 臨床QV, from 個人番号1 on
  Visit,    ///< カルテ, from d1 on
  Claim1,   ///< 保険申請 (second half), from d1 on
  Claim2,   ///< 保険申請 (second half), h1 to h4 and m1 to m4
};

/// Whether the file lacks any column of the run. A file in which a run was cut off has the run's first column
/// and needs growth all the same. A missing or damaged file is a fault.
Result<bool> needsGrowth(const QString& path, GrowthRun run);

/// Adds the columns of the run that the file lacks, in their order, in one transaction: all or none. A file
/// that has them all stays untouched; one that may only be read, is damaged or in use elsewhere is told by
/// the engine's text. Record sets opened or refreshed afterwards have the new columns.
Done grow(const QString& path, GrowthRun run);

}  // namespace store

#pragma once

#include <QString>

#include "platform/store/record_set.h"

namespace store {

class Engine;

/// The four runs by which the tables of an older file get the columns that came after the first schema. They
/// belong to certain screens, one of which asks first; columns of no run are added when the file is opened
/// (growToCatalogue()). The claim runs both grow the second half of the claims.
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
/// that has them all stays untouched; one that may only be read, is damaged or in use elsewhere is a fault in
/// the engine's words. Record sets opened or refreshed afterwards have the new columns.
Done grow(const QString& path, GrowthRun run);

/// Adds to all tables of the file the columns of the catalogue that they lack and that belong to no run, in
/// one transaction: all or none. A table is known by its name and, where two files have one of that name, by
/// its columns, so that a file may have any name. Nothing is written to a file that lacks none, and one that
/// may only be read stays as it is; both are no fault.
Done growToCatalogue(Engine& engine);

}  // namespace store

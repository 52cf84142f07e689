#pragma once

#include "frame/core/run_state.h"
#include "platform/store/file_copy.h"

namespace frame {

/// Every tenth run ends with a generation backup: the last decimal digit of RunCounter is 0.
bool endsWithBackup(const RunState& run);

/// Rotates the three generations in the folder `backup` of the program folder: 2 over 3, 1 over 2, the live
/// file over 1, each file by itself. Reports nothing. A file that cannot be copied whole (in use, missing,
/// damaged) leaves its generations as they are; a generation that is damaged or does not fit its sum counts
/// as missing. A generation that a path of the settings points to is a live file; its digit is left out. If
/// the program dies anywhere within, each file has at least one whole generation that fits the list, and the
/// next run goes on from there.
void backUpGenerations(const RunState& run, const store::CopyWatch& watch = {});

}  // namespace frame

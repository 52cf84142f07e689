#pragma once

#include <functional>

namespace store {

/// How the world ends at the cut.
enum class Cut {
  Kill,   ///< the program dies: what it wrote stands
  Power,  ///< the machine dies: of what was not synced, each write, new file and deletion stands or not by
          ///< lot
};

/// Puts itself between the engine and the disk of this process, for good: only for a child that is about to
/// end. After `operations` writes, syncs, cuts and deletions the process ends with status kCutStatus.
void cutAfter(int operations, Cut cut, unsigned lot);

inline constexpr int kCutStatus = 9;

}  // namespace store

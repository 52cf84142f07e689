#pragma once

#include <QString>

#include "platform/store/record_set.h"

namespace store {

/// Looks through the whole file for damage. The fault tells what was found.
Done checkIntegrity(const QString& path);

}  // namespace store

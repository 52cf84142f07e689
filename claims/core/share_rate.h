#pragma once

#include <QString>

namespace claims {

/// Rate of the patient's share by 一部負担金 ("1割" is 0.1); 0 for any other text: no share.
double shareRate(const QString& share);

}  // namespace claims

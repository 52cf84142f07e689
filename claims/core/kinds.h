#pragma once

#include <QString>

namespace claims {

/// Kind of treatment, column 施術内容: 鍼灸, 鍼 and 灸 are acupuncture claims, あマ a massage claim.
enum class Kind { None, Acupuncture, Massage };
Kind kindOf(const QString& treatment);

}  // namespace claims

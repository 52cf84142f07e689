#pragma once

#include <QString>

#include "platform/text/result.h"

namespace claims {

/// Whether any claim bears this month in 申請年月, letter by letter as it was stored: a month that differs in
/// a digit's width is another text.
text::Result<bool> holdsMonth(const QString& claimsPath, const QString& month);

}  // namespace claims

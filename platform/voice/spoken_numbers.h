#pragma once

#include <QString>

namespace voice {

/// Numbers as they are said, for a voice that reads ASCII digits as numbers and knows nothing of what they
/// count. Takes a text with ASCII digits. 4月1日 becomes シガツツイタチ, 10:30 becomes 10ジ30プン, 2024/10/1
/// a date, "1,234" 1234. Long numbers and those that begin with 0 (numbers of insurers, telephones) are said
/// digit by digit: "0 3ノ1 2 3 4". A dash is マイナス before an amount, else a pause.
QString spokenNumbers(const QString& text);

}  // namespace voice

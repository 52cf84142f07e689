#pragma once

#include <QString>
#include <QTime>
#include <optional>

namespace office {

/// The format "h 時 m 分" of 予約時間: blanks around the kanji, hours of 24, no leading zeros.
QString timeText(QTime time);

/// A typed time of day: 9:30, 9:30:15, 9時, 9時半, 14 時 30 分, 午後2時, 2:30 PM, with ASCII or full-width
/// characters. Refused: numbers without a separator, hours above 23, minutes above 59, 午後 before an hour
/// above 12.
std::optional<QTime> typedTime(const QString& typed);

}  // namespace office

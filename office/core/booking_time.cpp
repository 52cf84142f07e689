#include "office/core/booking_time.h"

#include <QRegularExpression>

#include "platform/text/width.h"

namespace office {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kNoon = 12;

/// The hour of 24 hours; -1 if the half of the day does not have it.
int hourOf(int hour, bool morning, bool afternoon) {
  if (!morning && !afternoon) return hour;
  if (hour > kNoon) return -1;
  return hour % kNoon + (afternoon ? kNoon : 0);
}

}  // namespace

QString timeText(QTime time) { return u"%1 時 %2 分"_s.arg(time.hour()).arg(time.minute()); }

std::optional<QTime> typedTime(const QString& typed) {
  static const QRegularExpression pattern(
      u"^(?<am>午前|AM)?(?<pm>午後|PM)?"
      u"(?<hour>[0-9]{1,2})(?::(?<minute>[0-9]{1,2})(?::(?<second>[0-9]{1,2}))?"
      u"|時(?:(?<half>半)|(?<kanjiMinute>[0-9]{1,2})分(?:(?<kanjiSecond>[0-9]{1,2})秒)?)?)"
      u"(?<amAfter>AM)?(?<pmAfter>PM)?$"_s,
      QRegularExpression::CaseInsensitiveOption);
  // Blanks count for nothing: "9 時 30 分" is what the book itself writes.
  const QString plain = text::toHalfWidth(typed).remove(u' ');
  const QRegularExpressionMatch match = pattern.match(plain);
  if (!match.hasMatch()) return std::nullopt;
  const auto has = [&](QStringView name) { return match.hasCaptured(name); };
  const auto number = [&](QStringView name) { return match.captured(name).toInt(); };
  const bool morning = has(u"am") || has(u"amAfter"), afternoon = has(u"pm") || has(u"pmAfter");
  if (morning && afternoon) return std::nullopt;
  constexpr int kHalfHour = 30;
  const int minute = has(u"half") ? kHalfHour : number(u"minute") + number(u"kanjiMinute");
  const QTime time(hourOf(number(u"hour"), morning, afternoon), minute,
                   number(u"second") + number(u"kanjiSecond"));
  return time.isValid() ? std::optional(time) : std::nullopt;
}

}  // namespace office

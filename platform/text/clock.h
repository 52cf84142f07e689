#pragma once

#include <QDateTime>

namespace text {

/// Where today's date comes from. Rules never ask the system clock themselves.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual QDateTime now() const = 0;
  QDate today() const { return now().date(); }
};

class SystemClock final : public Clock {
 public:
  QDateTime now() const override { return QDateTime::currentDateTime(); }
};

/// A clock that always shows the time it was set to, for tests and for `rulecheck`.
class FixedClock final : public Clock {
 public:
  explicit FixedClock(QDate date, QTime time = QTime(9, 0)) : m_now(date, time) {}
  QDateTime now() const override { return m_now; }
  void set(QDate date) { m_now.setDate(date); }

 private:
  QDateTime m_now;
};

}  // namespace text

// The operation `era`: date conversions under either capability, for a given today.

#include <QHash>
#include <functional>

#include "frame/core/era_date.h"
#include "tools/rulecheck/ops.h"

namespace rulecheck {
namespace {

using frame::EraDates;

/// What a call is given besides the capability and today.
struct Question {
  QString text;
  QString cutover;
};

QJsonObject reply(const std::optional<QString>& result) {
  return {{"ok", result.has_value()}, {"result", result.value_or(QString())}};
}

QJsonObject reply(bool yes) { return {{"ok", yes}, {"result", yes ? "1" : "0"}}; }

/// A field's conversion always gives a text; `ok` tells whether it was a date.
QJsonObject field(const EraDates& dates, const QString& before, const QString& after) {
  return {{"ok", dates.isDateOk(before)}, {"result", after}};
}

QJsonObject parts(const frame::TodayParts& today) {
  const QJsonObject each = {{"era_year", today.eraYear}, {"month", today.month}, {"day", today.day}};
  return {{"ok", true}, {"result", today.reiwaDate}, {"era_form", today.eraDate}, {"parts", each}};
}

QJsonObject heiseiToReiwa(const EraDates& dates, const QString& text) {
  const auto date = dates.platformDate(text);
  return reply(date ? dates.heiseiToReiwa(*date) : std::nullopt);
}

QJsonObject age(const EraDates& dates, const QString& text) {
  const auto years = dates.ageFromBirthDate(text);
  return reply(years ? std::optional(QString::number(*years)) : std::nullopt);
}

QJsonObject cutover(const EraDates& dates, const Question& asked) {
  const auto date = asked.text.isEmpty() ? std::optional(dates.clock().today()) : dates.anyDate(asked.text);
  const auto from = dates.platformDate(asked.cutover);
  if (!date || !from) return error("IsAfterReiwaCutover needs a date and a cutover");
  const bool after = dates.isAfterReiwaCutover(*date, *from);
  return {{"ok", true}, {"result", after ? "1" : "0"}};
}

QJsonObject claimMonth(const EraDates& dates, const QString& month) {
  const auto date = dates.claimMonthToDate(month);
  const bool supported = dates.capability() == frame::EraCapability::Supported;
  const QString form = supported ? QStringLiteral("yyyy/MM/dd") : QStringLiteral("yyyy/M/d");
  return reply(date ? std::optional(date->toString(form)) : std::nullopt);
}

using Call = std::function<QJsonObject(const EraDates&, const Question&)>;

const QHash<QString, Call>& calls() {
  static const QHash<QString, Call> table = {
      {"FormatEra", [](auto& dates, auto& asked) { return reply(dates.formatEra(asked.text)); }},
      {"ParseEraDate", [](auto& dates, auto& asked) { return reply(dates.parseEraDate(asked.text)); }},
      {"WesternToReiwa", [](auto& dates, auto& asked) { return reply(dates.westernToReiwa(asked.text)); }},
      {"HeiseiToReiwa", [](auto& dates, auto& asked) { return heiseiToReiwa(dates, asked.text); }},
      {"TodayEraParts", [](auto& dates, auto&) { return parts(dates.todayEraParts()); }},
      {"TodayEraPartsMenu", [](auto& dates, auto&) { return parts(dates.todayEraPartsMenu()); }},
      {"AgeFromBirthDate", [](auto& dates, auto& asked) { return age(dates, asked.text); }},
      {"IsAfterReiwaCutover", [](auto& dates, auto& asked) { return cutover(dates, asked); }},
      {"isDateOk", [](auto& dates, auto& asked) { return reply(dates.isDateOk(asked.text)); }},
      {"wareki", [](auto& dates, auto& asked) { return field(dates, asked.text, dates.wareki(asked.text)); }},
      {"seireki",
       [](auto& dates, auto& asked) { return field(dates, asked.text, dates.seireki(asked.text)); }},
      {"claimMonthToDate", [](auto& dates, auto& asked) { return claimMonth(dates, asked.text); }},
  };
  return table;
}

}  // namespace

QJsonObject era(const QJsonObject& request, Context&) {
  const auto call = calls().constFind(request["call"].toString());
  if (call == calls().constEnd()) return error("unknown call: " + request["call"].toString());
  const bool unsupported = request["capability"].toString() == QStringLiteral("非対応");
  const text::SystemClock system;
  QDate today = system.today();
  if (request.contains("today")) {
    today = QDate::fromString(request["today"].toString(), QStringLiteral("yyyy/M/d"));
    if (!today.isValid()) return error("today is no date: " + request["today"].toString());
  }
  const text::FixedClock clock(today);
  const EraDates dates(unsupported ? frame::EraCapability::Unsupported : frame::EraCapability::Supported,
                       clock);
  return (*call)(dates, {request["text"].toString(), request["cutover"].toString()});
}

}  // namespace rulecheck

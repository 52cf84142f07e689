#pragma once

#include <QJsonObject>
#include <QString>

namespace rulecheck {

/// What every operation is given: the program folder whose fee files, templates and qv.dat it reads.
struct Context {
  QString programFolder;
};

/// Operations take a request and return the reply without its id. A fault of the request is
/// {"error": text}.
QJsonObject era(const QJsonObject& request, Context& context);
QJsonObject nextMonth(const QJsonObject& request, Context& context);
QJsonObject feeFile(const QJsonObject& request, Context& context);
QJsonObject fees(const QJsonObject& request, Context& context);
QJsonObject tally(const QJsonObject& request, Context& context);
QJsonObject boxes(const QJsonObject& request, Context& context);
QJsonObject amounts(const QJsonObject& request, Context& context);
QJsonObject check(const QJsonObject& request, Context& context);
QJsonObject entry(const QJsonObject& request, Context& context);
QJsonObject trim(const QJsonObject& request, Context& context);
QJsonObject print(const QJsonObject& request, Context& context);
QJsonObject order(const QJsonObject& request, Context& context);
QJsonObject match(const QJsonObject& request, Context& context);
QJsonObject formTemplate(const QJsonObject& request, Context& context);

inline QJsonObject error(const QString& text) { return {{"error", text}}; }

}  // namespace rulecheck

// rulecheck: the rules without screens. One JSON request a line in, one JSON reply a line out.

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>
#include <iostream>
#include <string>

#include "tools/rulecheck/ops.h"

namespace rulecheck {
namespace {

using Op = QJsonObject (*)(const QJsonObject&, Context&);

struct OpRow {
  const char* name;
  Op run;
};

constexpr OpRow kOps[] = {
    {"era", era},         {"nextMonth", nextMonth},   {"feeFile", feeFile},
    {"fees", fees},       {"tally", tally},           {"boxes", boxes},
    {"amounts", amounts}, {"check", check},           {"entry", entry},
    {"trim", trim},       {"print", print},           {"order", order},
    {"match", match},     {"template", formTemplate},
};

QJsonObject answer(const QByteArray& line, Context& context) {
  QJsonParseError fault;
  const QJsonDocument document = QJsonDocument::fromJson(line, &fault);
  if (fault.error != QJsonParseError::NoError || !document.isObject())
    return error("not a JSON object: " + fault.errorString());
  const QJsonObject request = document.object();
  const QString op = request["op"].toString();
  QJsonObject reply = error("unknown op: " + op);
  for (const OpRow& row : kOps) {
    if (op == QLatin1String(row.name)) reply = row.run(request, context);
  }
  if (request.contains("id")) reply.insert("id", request["id"]);
  return reply;
}

}  // namespace
}  // namespace rulecheck

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  rulecheck::Context context;
  context.programFolder =
      argc > 1 ? QString::fromLocal8Bit(argv[1]) : QCoreApplication::applicationDirPath() + "/../program";
  context.programFolder = QFileInfo(context.programFolder).absoluteFilePath();
  std::string line;
  while (std::getline(std::cin, line)) {
    if (line.empty()) continue;
    const QJsonObject reply = rulecheck::answer(QByteArray::fromStdString(line), context);
    std::cout << QJsonDocument(reply).toJson(QJsonDocument::Compact).constData() << std::endl;
  }
  return 0;
}

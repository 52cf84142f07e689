#include <QFileInfo>
#include <QJsonArray>

#include "platform/report/prp_loader.h"
#include "tools/rulecheck/ops.h"

namespace rulecheck {

namespace {

QJsonObject describe(const report::Item& item) {
  QJsonObject row{{"name", item.name}, {"kind", report::kindWord(item.kind)},
                  {"x", item.rect.x},  {"y", item.rect.y},
                  {"w", item.rect.w},  {"h", item.rect.h},
                  {"pt", item.pt},     {"hidden", item.hidden},
                  {"text", item.text}};
  QJsonArray places;
  for (const report::Placement& placement : item.placements)
    places.append(QJsonObject{{"words", QJsonArray::fromStringList(placement.words)},
                              {"x", placement.rect.x},
                              {"y", placement.rect.y},
                              {"w", placement.rect.w},
                              {"h", placement.rect.h}});
  if (!places.isEmpty()) row.insert("places", places);
  return row;
}

}  // namespace

/// The items of a form, bases resolved; a bare name gets the ending of templates.
QJsonObject formTemplate(const QJsonObject& request, Context& context) {
  QString name = request["name"].toString();
  if (name.isEmpty()) return error("name is missing");
  if (QFileInfo(name).suffix().isEmpty()) name += QStringLiteral(".PRP");
  const auto form = report::loadForm(context.programFolder, name);
  if (!form.ok()) return error(form.fault().message);
  QJsonArray items;
  for (const report::Item& item : form.value()->items) items.append(describe(item));
  return {{"form", form.value()->name}, {"paper", form.value()->paper.word}, {"items", items}};
}

}  // namespace rulecheck

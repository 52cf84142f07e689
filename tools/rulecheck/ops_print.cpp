// Printing of one claim: which screen, which form, what is called and what the sheet becomes.

#include <QJsonArray>

#include "claims/core/claim_store.h"
#include "claims/core/kinds.h"
#include "platform/report/prp_loader.h"
#include "platform/report/recording_operations.h"
#include "platform/report/report_engine.h"
#include "platform/store/tables/claims.h"
#include "printing/contract/prompts.h"
#include "printing/core/claim_job.h"
#include "printing/core/print_button.h"
#include "printing/core/screen_choice.h"
#include "printing/core/template_choice.h"
#include "tools/rulecheck/claim_json.h"
#include "tools/rulecheck/ops.h"

namespace rulecheck {
namespace {

/// The claim as it stands after 登録, unless the request brings its record of amounts.
claims::ClaimRecord storedClaim(const QJsonObject& request, const Context& context) {
  const claims::ClaimRecord claim = claimOf(request);
  if (!claim.blank(claim::hariRecord) || !claim.blank(claim::massageRecord)) return claim;
  const claims::FeeFiles files(context.programFolder,
                               context.programFolder + QStringLiteral("/料金設定2000.mdb"));
  static claims::StoredFees fees;
  const auto stored = claims::storeClaim(claim, {eraDates(), files, fees});
  return stored.calculation ? claim : stored.claim;
}

frame::RunState runOf(const QJsonObject& request) {
  frame::RunState run;
  run.clock = &eraDates().clock();
  run.prefectureCode = request["prefecture"].toString();
  run.aichiSubmission = request["aichi"].toString(QStringLiteral("3"));
  run.tokyoSubmission = request["tokyo"].toString(QStringLiteral("5"));
  const QJsonObject profile = request["profile"].toObject();
  for (auto slot = profile.begin(); slot != profile.end(); ++slot) {
    const int number = slot.key().toInt();
    if (number < 0 || number >= frame::SettingsSlots::kFileFields) continue;
    run.profile[number] = run.settings[number] = slot.value().toString();
  }
  return run;
}

printing::PrintSource sourceOf(const QJsonObject& request, const frame::RunState& run,
                               const Context& context) {
  printing::PrintSource source;
  printing::addClinicData(source, run);
  source.claim = storedClaim(request, context);
  const bool massage = claims::kindOf(source.claim.get(claim::treatmentKind)) == claims::Kind::Massage;
  source.kind = massage ? printing::PrintKind::Massage : printing::PrintKind::Acupuncture;
  // A name that both screens have is the printing screen's.
  for (const QJsonValue& name : request["checks"].toArray())
    if (!claims::setTick<printing::PrintTicks>(source.ticks, printing::kPrintTicks, name.toString()))
      claims::setTick<claims::FormTicks>(source.form, claims::kFormTicks, name.toString());
  if (request["itemsOnly"].toBool()) source.form.itemsOnly = true;
  return source;
}

/// Edition and ticks on the screen: those of the request, else the presets.
void chooseOnScreen(const QJsonObject& request, printing::PrintScreen screen, printing::PrintSource& source) {
  source.edition = request.contains("option")
                       ? printing::editionNamed(screen, request["option"].toString())
                       : printing::presetEdition(screen, eraDates(), source.claim.get(claim::month),
                                                 source.claim.get(claim::summaryKind));
  if (!request.contains("checks")) source.ticks = printing::presetTicks(source.prefecture);
}

/// What the template shows as it is stored, and over it what the run made of its items.
QJsonObject itemsOf(const report::RecordingOperations& run, const QString& folder, const QString& fileName) {
  QJsonObject items;
  const auto form = report::loadForm(folder, fileName);
  if (!form) return items;
  for (const report::Item& item : form.value()->items) {
    if (!item.hidden && !run.items().contains(item.name))
      items[item.name] = QJsonObject{{"text", item.text}, {"visible", true}};
  }
  for (auto item = run.items().begin(); item != run.items().end(); ++item) {
    const int stored = form.value()->find(item.key());
    const bool own = !item->text.isNull() || stored < 0;
    const QString& text = own ? item->text : form.value()->items[static_cast<size_t>(stored)].text;
    items[item.key()] = QJsonObject{{"text", text}, {"visible", item->visible}};
  }
  return items;
}

QJsonArray callsOf(const report::RecordingOperations& run) {
  QJsonArray calls;
  for (const report::RecordedCall& call : run.calls()) {
    QJsonArray parts{call.name};
    for (const QVariant& argument : call.arguments) parts.append(QJsonValue::fromVariant(argument));
    calls.append(parts);
  }
  return calls;
}

void printInto(QJsonObject& reply, const printing::PrintSource& source, printing::PrintScreen screen,
               const Context& context, const QString& pdf) {
  std::vector<report::MemorySink::Document> documents;
  report::ReportEngine engine(context.programFolder, [&](const report::PrinterChoice&) {
    return pdf.isEmpty() ? std::unique_ptr<report::DocumentSink>(new report::MemorySink(documents))
                         : std::unique_ptr<report::DocumentSink>(new report::FileSink(pdf));
  });
  report::RecordingOperations recorder(&engine);
  if (printing::runPrint(recorder, printing::claimJob(source, screen, eraDates())) ==
      printing::RunEnd::NotTaken)
    reply["error"] = recorder.lastDocument().fault().message;
  reply["calls"] = callsOf(recorder);
  reply["items"] = itemsOf(recorder, context.programFolder, reply["template"].toString());
}

}  // namespace

QJsonObject print(const QJsonObject& request, Context& context) {
  const frame::RunState run = runOf(request);
  printing::PrintSource source = sourceOf(request, run, context);
  const auto screen = request.contains("screen") ? printing::printScreenNamed(request["screen"].toString())
                                                 : printing::printScreenOf(source.claim, source.form, run);
  if (!screen && !request.contains("screen")) return error(QStringLiteral("claim: 申請年月 cannot be read"));
  if (screen) chooseOnScreen(request, *screen, source);
  const auto paper = screen ? printing::chooseTemplate(*screen, source) : std::nullopt;
  const QString name = screen ? printing::nameOf(*screen) : request["screen"].toString();
  QJsonObject reply{{"screen", name},
                    {"prompt", printing::promptOf(name)},
                    {"title", printing::claimTitle(source.kind)},
                    {"template", paper ? QJsonValue(paper->fileName) : QJsonValue()},
                    {"calls", QJsonArray()},
                    {"items", QJsonObject()}};
  if (paper && paper->built)
    printInto(reply, source, *screen, context, request["pdf"].toString());
  else
    reply["note"] = QStringLiteral("this edition is not built: nothing is printed");
  return reply;
}

}  // namespace rulecheck

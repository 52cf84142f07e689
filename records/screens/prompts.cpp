#include "records/screens/prompts.h"

#include "frame/core/routes.h"

namespace records {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Note kNoDataLines[] = {
    {.name = {u"Label1"}, .caption = u"データがありません。"},
    {.name = {u"Label2"}, .caption = u"新規データを追加しますか？"},
    {.name = {u"Label3"}, .caption = u"記入後には、登録ボタンを押してください。"}};
constexpr PromptButton kNoDataButtons[] = {
    {.name = {u"Command1"}, .caption = u"ＯＫ", .action = u"firstPatient"},
    {.name = {u"Command2"}, .caption = u"キャンセル", .action = kClosePrompt}};

constexpr ConfirmRow kPrompts[] = {{.name = routes::AskFirstPatient::screen,
                                    .caption = u"無データ",
                                    .lines = kNoDataLines,
                                    .buttons = kNoDataButtons}};

// On purpose this notice writes the settings file, as the settings screens do.
void addFirstPatient(ConfirmPrompt& prompt, frame::RunState& run) {
  const text::Done written = frame::saveRun(run, frame::SettingsWriter::Other);
  if (!written) prompt.messages().tell(written.fault().message);
  prompt.navigator().show(routes::PatientRegister{routes::PatientRegister::NewPatient{}});
}

}  // namespace

std::span<const ConfirmRow> prompts() { return kPrompts; }

PromptActions promptActions(frame::RunState& run) {
  return {{u"firstPatient"_s, [&run](ConfirmPrompt& prompt) { addFirstPatient(prompt, run); }}};
}

}  // namespace records

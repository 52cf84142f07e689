#include "records/screens/prompts.h"

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

constexpr ConfirmRow kPrompts[] = {
    {.name = u"無データ", .caption = u"無データ", .lines = kNoDataLines, .buttons = kNoDataButtons}};

// Kept: this notice writes the settings file like the settings screens do.
void addFirstPatient(ConfirmPrompt& prompt, frame::RunState& run) {
  const text::Done written = frame::saveRun(run, frame::SettingsWriter::Other);
  if (!written) prompt.messages().tell(written.fault().message);
  prompt.navigator().show(u"治療台帳4"_s, {{u"新規"_s, true}});
}

}  // namespace

std::span<const ConfirmRow> prompts() { return kPrompts; }

PromptActions promptActions(frame::RunState& run) {
  return {{u"firstPatient"_s, [&run](ConfirmPrompt& prompt) { addFirstPatient(prompt, run); }}};
}

}  // namespace records

#include "frame/screens/prompts.h"

#include "frame/core/routes.h"
#include "frame/screens/settings_writer.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Note kRestart{.name = {u"Label2"},
                        .caption = u"治療台帳を再起動して下さい。ここで一旦、治療台帳を終了します。"};

constexpr Note kFoldersLines[] = {
    {.name = {u"Label1"}, .caption = u"LANおよびフォルダ指定の変更をします。よろしいですか？"}, kRestart};
constexpr PromptButton kFoldersButtons[] = {
    {.name = {u"Command1"}, .caption = u"ＯＫ", .action = u"storeFolders"},
    {.name = {u"Command2"}, .caption = u"キャンセル", .action = u"backToFolders"}};

constexpr Note kProfileLines[] = {
    {.name = {u"Label1"}, .caption = u"初期設定の変更をします。よろしいですか？"}, kRestart};
constexpr PromptButton kProfileButtons[] = {
    {.name = {u"Command1"}, .caption = u"ＯＫ", .action = u"storeProfile"},
    {.name = {u"Command2"}, .caption = u"キャンセル", .action = u"backToProfile"}};

constexpr Note kEndLines[] = {{.name = {u"Label1"}, .caption = u"治療台帳を終了します。"}};
constexpr PromptButton kEndButtons[] = {{.name = {u"Command1"}, .caption = u"はい", .action = u"endProgram"}};

constexpr Note kCloseLines[] = {{.name = {u"Label1"}, .caption = u"治療台帳を閉じますか？"}};
constexpr PromptButton kCloseButtons[] = {
    {.name = {u"Command1"}, .caption = u"はい", .action = u"backToOpener"},
    {.name = {u"Command2"}, .caption = u"いいえ", .action = kClosePrompt}};

constexpr Note kRestartLines[] = {
    {.name = {u"Label1"},
     .caption = u"治療台帳を再起動して下さい。       ここで一旦、治療台帳を終了します。"}};
constexpr PromptButton kRestartButtons[] = {
    {.name = {u"Command1"}, .caption = u"ＯＫ", .action = u"askToEnd"}};

constexpr Note kNoPrintLines[] = {
    {.name = {u"Label1"},
     .caption = u"メモリの不足が原因だと思います。一旦、治療台帳を終了してからソフトを再起動してください。"
                u"それでも印刷出来ない場合は、パソコンを再起動してください。"}};
constexpr PromptButton kNoPrintButtons[] = {
    {.name = {u"Command1"}, .caption = u"ＯＫ", .action = kClosePrompt}};

constexpr ConfirmRow kPrompts[] = {
    {.name = routes::AskFolders::screen,
     .caption = u"LANフォルダ指定の実行",
     .lines = kFoldersLines,
     .buttons = kFoldersButtons},
    {.name = routes::AskProfile::screen,
     .caption = u"登録の実行",
     .lines = kProfileLines,
     .buttons = kProfileButtons},
    {.name = routes::AskEnd::screen, .caption = u"終了", .lines = kEndLines, .buttons = kEndButtons},
    {.name = routes::AskClose::screen, .caption = u"閉じる", .lines = kCloseLines, .buttons = kCloseButtons},
    {.name = routes::Restart::screen,
     .caption = u"再起動",
     .lines = kRestartLines,
     .buttons = kRestartButtons},
    {.name = routes::PrintTroubleHelp::screen,
     .caption = u"印刷出来ない場合の処置",
     .lines = kNoPrintLines,
     .buttons = kNoPrintButtons},
};

/// Takes the folders as typed; they apply from the next start on. A fault leaves the old ones in force.
void storeFolders(ConfirmPrompt& prompt, RunState& run) {
  const DataFolders before = std::exchange(run.folders, run.pendingFolders);
  if (writeSettings(prompt, run, SettingsWriter::Folders)) {
    prompt.navigator().show(routes::AskEnd{});
    return;
  }
  run.folders = before;
  prompt.navigator().show(routes::Folders{});
}

void storeProfile(ConfirmPrompt& prompt, RunState& run) {
  const bool written = writeSettings(prompt, run, SettingsWriter::Profile);
  prompt.navigator().show(written ? routes::AskEnd::screen : routes::Profile::screen);
}

}  // namespace

std::span<const ConfirmRow> prompts() { return kPrompts; }

PromptActions promptActions(RunState& run) {
  return {
      {u"storeFolders"_s, [&run](ConfirmPrompt& prompt) { storeFolders(prompt, run); }},
      {u"backToFolders"_s, [](ConfirmPrompt& prompt) { prompt.navigator().show(routes::Folders{}); }},
      {u"storeProfile"_s, [&run](ConfirmPrompt& prompt) { storeProfile(prompt, run); }},
      {u"backToProfile"_s, [](ConfirmPrompt& prompt) { prompt.navigator().show(routes::Profile{}); }},
      {u"askToEnd"_s, [](ConfirmPrompt& prompt) { prompt.navigator().show(routes::AskEnd{}); }},
      {u"endProgram"_s, [](ConfirmPrompt& prompt) { prompt.navigator().quit(); }},
      {u"backToOpener"_s,
       [](ConfirmPrompt& prompt) {
         const auto* asked = prompt.request().as<routes::AskClose>();
         if (asked && asked->opener) prompt.navigator().show(*asked->opener);
       }},
  };
}

}  // namespace frame

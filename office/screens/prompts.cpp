#include "office/screens/prompts.h"

#include "frame/core/routes.h"

namespace office {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Note kUnfinishedLines[] = {
    {.name = {u"Label1"},
     .caption = u"予約患者名が入っていないか、更新ボタンが押されていません。必ず予約を登録したい場合は、"
                u"更新ボタンを押してから、閉じるのボタンを押してください。"
                u"このままＯＫボタンを押すとデータは保存、更新されません。"}};
constexpr PromptButton kUnfinishedButtons[] = {
    {.name = {u"Command1"}, .caption = u"ＯＫ", .action = u"dropBooking"},
    {.name = {u"Command2"}, .caption = u"予約フォームに戻る", .action = u"backToBooking"}};

constexpr Note kCalendarLines[] = {
    {.name = {u"Label1"},
     .caption = u"WindowsXp対応としてのバージョンアップでしたが、予約および集計でカレンダー表示をさせると"
                u"エラーが出て強制終了してしまうことがわかりました。"},
    {.name = {u"Label2"},
     .caption = u"WindowsXpで治療台帳を起動している場合、予約および集計でカレンダー表示をさせないように"
                u"してください。"},
    {.name = {u"Label3"}, .caption = u"今のところ回避出来ない状態です。"},
    {.name = {u"Label4"},
     .caption =
         u"WindowsXp上でプログラムの製作過程でも、カレンダーを使うと強制終了してしまいますので、WindowsXpでは"
         u"カレンダーを使えないのがはっきりいたしました。"},
    {.name = {u"Label5"}, .caption = u"今後、どうするか検討中です。"}};
constexpr PromptButton kCalendarButtons[] = {
    {.name = {u"Command1"}, .caption = u"WindowsXp", .action = u"refuseCalendar"},
    {.name = {u"Command2"}, .caption = u"Windows98・98SE・Me・2000", .action = u"openCalendar"},
    {.name = {u"Command3"}, .caption = u"キャンセル", .action = kClosePrompt}};

constexpr ConfirmRow kPrompts[] = {
    {.name = routes::AskUnfinishedBooking::screen,
     .caption = u"更新の確認",
     .lines = kUnfinishedLines,
     .buttons = kUnfinishedButtons},
    {.name = routes::AskCalendar::screen,
     .caption = u"カレンダーのチェック",
     .lines = kCalendarLines,
     .buttons = kCalendarButtons},
};

/// 予約2 closes without its unfinished booking and goes back to where it was opened from.
void dropBooking(ConfirmPrompt& prompt) {
  const auto* asked = prompt.request().as<routes::AskUnfinishedBooking>();
  if (asked && asked->caller) prompt.navigator().show(*asked->caller);
  prompt.navigator().unload(routes::Booking::screen);
}

void refuseCalendar(ConfirmPrompt& prompt) {
  prompt.messages().tell(u"WindowsXpでは、エラーが出て強制終了いたします。カレンダー表示は出来ません。"_s);
}

}  // namespace

std::span<const ConfirmRow> prompts() { return kPrompts; }

PromptActions promptActions() {
  return {
      {u"dropBooking"_s, dropBooking},
      {u"backToBooking"_s,
       [](ConfirmPrompt& prompt) {
         prompt.navigator().show(routes::Booking{.what = routes::Booking::Back{}});
       }},
      {u"refuseCalendar"_s, refuseCalendar},
      {u"openCalendar"_s, [](ConfirmPrompt& prompt) { prompt.navigator().show(routes::BookingCalendar{}); }},
  };
}

}  // namespace office

#include "claims/screens/month_screen.h"

#include "claims/core/month_claims.h"
#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "platform/screen/declare.h"
#include "platform/text/utf16.h"

namespace claims {

using namespace Qt::StringLiterals;
namespace unbuilt = routes::unbuilt;

namespace {

using namespace screen;

constexpr Choice kPapers[] = {{{u"Option1", 0}, u"従来用紙", u"従来用紙"},
                              {{u"Option1", 1}, u"局所別計算用紙", u"局所別計算用紙"}};

constexpr Command printing(ControlName name, Words caption) {
  return {.name = name, .caption = caption, .run = run<&MonthScreen::printMonth>};
}

constexpr Row kRows[] = {
    Note{.name = u"Label1",
         .caption = u"レセプトデータを一括で印刷する月を入力してください。",
         .spoken = true},
    TextField{.name = u"Text1",
              .caption = u"印刷する施術年月を入力してください",
              .bind = Unbound{u"the month to print"},
              .limit = 50},
    Note{.name = u"Label3", .caption = u"※記録されている申請年月で入力してください。", .spoken = true},
    Options{.name = u"Frame1",
            .caption = u"印刷用紙",
            .bind = Unbound{u"chosen for this print"},
            .choices = kPapers},
    Check{.name = u"Check1",
          .caption = u"令和3年4月からの用紙の場合は、チェックを入れてください。",
          .bind = Unbound{u"chosen for this print"}},
    Check{
        .name = u"Check2",
        .caption =
            u"保険者より申請書上部の申請年月に元号を記載するよう指示があった場合にチェックを入れてください。",
        .bind = Unbound{u"chosen for this print"}},
    Bar{},
    printing({u"Command1", 0}, u"鍼灸印刷"),
    printing({u"Command1", 1}, u"あマ印刷"),
    printing({u"Command1", 2}, u"鍼灸（協･組･共）印刷"),
    printing({u"Command1", 3}, u"あマ（協･組･共）印刷"),
    EndBar{},
    Bar{},
    Command{
        .name = u"Command2", .caption = u"プリンターオプション", .run = run<&MonthScreen::printerOptions>},
    Command{.name = u"Command3", .caption = u"閉じる", .run = run<&MonthScreen::finish>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kScreen = declare(
    {.name = routes::ClaimMonth::screen, .caption = u"年月指定", .rows = kRows, .heading = u"年月指定"});

constexpr ControlRef kMonth = ref(kRows, u"Text1");
constexpr ControlRef kPaper = ref(kRows, u"Frame1");
constexpr ControlRef kOlderForms = ref(kRows, u"Check1");
constexpr ControlRef kEraWord = ref(kRows, u"Check2");

/// What the four buttons print; the oldest generation has a screen of its own.
struct Batch {
  bool massage;
  bool oldest;
};
constexpr Batch kBatches[] = {{false, false}, {true, false}, {false, true}, {true, true}};

}  // namespace

MonthScreen::MonthScreen(Services& services, frame::RunState& run, ClaimsState& state)
    : Screen(kScreen, services), m_run(run), m_state(state) {}

void MonthScreen::onLoad() { choose(kPaper, text::utf16(kPapers[0].value)); }

bool MonthScreen::monthExists() {
  const auto exists = holdsMonth(m_run.folders[frame::folder::kClaims1], text(kMonth));
  if (!exists) messages().tellDataFault(exists.fault().message);
  if (exists && !*exists) messages().tell(u"年月が正しくありません。"_s);
  if (exists && *exists) return true;
  focusOn(kMonth);
  return false;
}

void MonthScreen::printMonth(int index) {
  if (!monthExists()) return;
  const Batch& batch = kBatches[index];
  const unbuilt::MonthRun run{text(kMonth), batch.massage ? u"あマ"_s : u"鍼灸"_s,
                              chosen(kPaper) == text::utf16(kPapers[1].value), checked(kEraWord)};
  const bool association = m_run.prefectureCode == u"23" && m_run.aichiSubmission != u"3";
  if (batch.oldest)
    openPrint<unbuilt::MonthPrint>(run);
  else if (checked(kOlderForms))
    association ? openPrint<unbuilt::MonthPrint2018Aichi>(run) : openPrint<unbuilt::MonthPrint2018>(run);
  else
    association ? openPrint<unbuilt::MonthPrint2024Aichi>(run) : openPrint<unbuilt::MonthPrint2024>(run);
}

void MonthScreen::printerOptions() {
  if (m_state.printing != nullptr) m_state.printing->setUpPrinter(winId());
}

void MonthScreen::finish() { close(); }

}  // namespace claims

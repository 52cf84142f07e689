#include "claims/screens/month_screen.h"

#include "claims/core/month_claims.h"

namespace claims {
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

constexpr ScreenRow kScreen{.name = u"年月", .caption = u"年月指定", .rows = kRows, .heading = u"年月指定"};

/// What the four buttons print; the oldest generation has a screen of its own.
struct Batch {
  const char16_t* kind;
  bool oldest;
};
constexpr Batch kBatches[] = {{u"5", false}, {u"6", false}, {u"7", true}, {u"8", true}};

}  // namespace

MonthScreen::MonthScreen(Services& services, frame::RunState& run, ClaimsState& state)
    : Screen(kScreen, services), m_run(run), m_state(state) {}

void MonthScreen::onLoad() { choose("Frame1", QString::fromUtf16(kPapers[0].value)); }

bool MonthScreen::monthStands() {
  const auto stands = holdsMonth(m_run.folders[frame::folder::kClaims1], text("Text1"));
  if (!stands) messages().tellDataFault(stands.fault().message);
  if (stands && !*stands) messages().tell(QStringLiteral("年月が正しくありません。"));
  if (stands && *stands) return true;
  focusOn("Text1");
  return false;
}

QString MonthScreen::batchScreen() const {
  const QString screen = checked("Check1") ? QStringLiteral("年月印刷2018") : QStringLiteral("年月印刷2024");
  const bool association = m_run.prefectureCode == u"23" && m_run.aichiSubmission != u"3";
  return association ? screen + QStringLiteral("aimakai") : screen;
}

void MonthScreen::printMonth(int index) {
  if (!monthStands()) return;
  const Batch& batch = kBatches[index];
  navigator().show(
      batch.oldest ? QStringLiteral("年月印刷") : batchScreen(),
      {{QStringLiteral("申請年月"), text("Text1")},
       {QStringLiteral("PrintKind"), QString::fromUtf16(batch.kind)},
       {QStringLiteral("局所別計算用紙"), chosen("Frame1") == QString::fromUtf16(kPapers[1].value)},
       {QStringLiteral("元号"), checked("Check2")}});
}

void MonthScreen::printerOptions() {
  if (m_state.printing != nullptr) m_state.printing->setUpPrinter(winId());
}

void MonthScreen::finish() { close(); }

}  // namespace claims

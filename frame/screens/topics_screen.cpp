#include "frame/screens/topics_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView kSilenced = u"15";

// All nine are spoken in order when the screen opens, and again by the button.
constexpr Row kRows[] = {
    Note{.name = {u"Label1"}, .caption = u"このバージョンのお知らせです。", .spoken = true},
    Note{.name = {u"Label2"},
         .caption =
             u"１．患者台帳、レセプトの入力、計算、印刷、翌月への継続が、キーボードと音声だけで行えます。",
         .spoken = true},
    Note{.name = {u"Label3"},
         .caption = u"２．令和６年６月と１０月の料金改定に対応しました。申請書の月に合った料金で計算します。",
         .spoken = true},
    Note{.name = {u"Label4"},
         .caption = u"３．令和６年１０月施術分から、訪問施術料を治療日の往療人数の欄に記入できます。",
         .spoken = true},
    Note{.name = {u"Label5"},
         .caption = u"４．レセプトのデータは二つのファイルに同時に記録され、停電のときも片方だけ残ることはあ"
                    u"りません。",
         .spoken = true},
    Note{.name = {u"Label6"},
         .caption = u"５．ほかのパソコンが先に書き換えたデータは、気付かずに上書きせず、お知らせします。",
         .spoken = true},
    Note{.name = {u"Label7"},
         .caption = u"６．検索は、ひらがなとカタカナ、全角と半角を区別せずに探します。",
         .spoken = true},
    Note{.name = {u"Label8"},
         .caption = u"７．プリンタが無いときの印刷は、印刷フォルダの中にＰＤＦファイルとして残ります。",
         .spoken = true},
    Note{.name = {u"Label9"},
         .caption = u"８．使い方は、メニューのヘルプの中のテキストヘルプで読むことが出来ます。",
         .spoken = true},
    Check{.name = {u"Check1"},
          .caption = u"次回からは表示しない",
          .bind = Unbound{u"topics counter of the settings"},
          .onToggle = call<&TopicsScreen::rememberTick>},
    Bar{},
    Command{.name = {u"Command2"}, .caption = u"トピックスを音声で説明", .run = run<&TopicsScreen::speakAll>},
    Command{.name = {u"Command1"},
            .caption = u"OK",
            .run = run<&TopicsScreen::finish>,
            .key = u"Esc",
            .standard = true},
    EndBar{},
};

constexpr ScreenRow kDeclaration =
    declare({.name = routes::Topics::screen, .caption = u"トピックス", .rows = kRows});

constexpr ControlRef kSilence = ref(kRows, u"Check1");

}  // namespace

TopicsScreen::TopicsScreen(Services& services, RunState& run) : Screen(kDeclaration, services), m_run(run) {}

void TopicsScreen::onLoad() { setChecked(kSilence, m_run.settings[slot::kTopics] == kSilenced); }

void TopicsScreen::rememberTick() {
  m_run.settings[slot::kTopics] = checked(kSilence) ? kSilenced.toString() : u"0"_s;
}

void TopicsScreen::speakAll() { voice().speakHeading(openingTexts()); }

void TopicsScreen::finish() { navigator().unload(routes::Topics::screen); }

}  // namespace frame

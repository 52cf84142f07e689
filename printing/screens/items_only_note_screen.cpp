#include "printing/screens/items_only_note_screen.h"

#include "frame/core/routes.h"
#include "platform/screen/declare.h"

namespace printing {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Row kRows[] = {
    Note{.name = {u"Label1"},
         .caption = u"項目のみ印刷では、枠と見出しは印刷されません。枠が印刷済みの用紙をプリンタにセットして"
                    u"ください。",
         .spoken = true},
    Note{.name = {u"Label2"},
         .caption = u"用紙は、次の画面で選択する用紙と同じものを、向きと表裏を確かめて入れてください。",
         .spoken = true},
    Note{.name = {u"Label3"},
         .caption =
             u"プリンタによっては、印刷の位置が少しずれます。最初に一枚、試しに印刷して確かめてください。",
         .spoken = true},
    Note{.name = {u"Label4"},
         .caption = u"拡大や縮小の設定になっていると、枠に合いません。等倍で印刷してください。",
         .spoken = true},
    Note{.name = {u"Label5"},
         .caption = u"枠も一緒に印刷するときは、項目のみ印刷のチェックを外してください。",
         .spoken = true},
    Check{.name = {u"Check1"},
          .caption = u"今回の機動中では、再表示しない。",
          .bind = Unbound{u"a mark of this run"},
          .onToggle = call<&ItemsOnlyNoteScreen::rememberTick>},
    Bar{},
    Command{.name = {u"Command2"},
            .caption = u"注意事項を音声で説明",
            .run = run<&ItemsOnlyNoteScreen::speakNote>},
    Command{.name = {u"Command1"},
            .caption = u"ＯＫ",
            .run = run<&ItemsOnlyNoteScreen::finish>,
            .key = u"Esc",
            .standard = true},
    EndBar{},
};

constexpr ScreenRow kDeclaration = declare({.name = routes::ItemsOnlyNote::screen,
                                            .caption = u"項目のみ印刷の注意事項",
                                            .rows = kRows,
                                            .heading = u"項目のみ印刷の注意事項"});

constexpr ControlRef kSilence = ref(kRows, u"Check1");

}  // namespace

ItemsOnlyNoteScreen::ItemsOnlyNoteScreen(Services& services, frame::RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

void ItemsOnlyNoteScreen::onLoad() { setChecked(kSilence, m_run.itemsOnlyNoteSilenced); }

void ItemsOnlyNoteScreen::speakNote() { voice().speakHeading(openingTexts()); }

void ItemsOnlyNoteScreen::rememberTick() { m_run.itemsOnlyNoteSilenced = checked(kSilence); }

void ItemsOnlyNoteScreen::finish() { navigator().unload(routes::ItemsOnlyNote::screen); }

}  // namespace printing

#include "frame/screens/captions_screen.h"

#include "frame/core/routes.h"
#include "frame/screens/settings_writer.h"
#include "platform/screen/declare.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Unbound kSetting{u"a setting"};

constexpr Row kRows[] = {
    Note{.name = {u"Label1"},
         .caption = u"ここで、項目の名前を変えることが出来ます。但し、ソフトの再起動が必要です。",
         .spoken = true},
    Group{.name = {u"Frame1"}, .caption = u"項目の名前", .columns = 1},
    TextField{.name = {u"Text1"}, .caption = u"テキスト1:", .bind = kSetting},
    TextField{.name = {u"Text2"}, .caption = u"テキスト2:", .bind = kSetting},
    TextField{.name = {u"Text3"}, .caption = u"テキスト3:", .bind = kSetting},
    TextField{.name = {u"Text4"}, .caption = u"症状:", .bind = kSetting},
    TextField{.name = {u"Text5"}, .caption = u"治療:", .bind = kSetting},
    EndGroup{},
    Bar{},
    Command{.name = {u"Command1"}, .caption = u"登録", .run = run<&CaptionsScreen::save>},
    Command{.name = {u"Command2"}, .caption = u"キャンセル", .run = run<&CaptionsScreen::cancel>},
    EndBar{},
};

constexpr ScreenRow kDeclaration =
    declare({.name = routes::OwnCaptions::screen, .caption = u"項目テキストの変更", .rows = kRows});

struct CaptionField {
  ControlRef control;
  slot::Slot slot;
};
constexpr CaptionField kFields[] = {{ref(kRows, u"Text1"), slot::kCaptionText1},
                                    {ref(kRows, u"Text2"), slot::kCaptionText2},
                                    {ref(kRows, u"Text3"), slot::kCaptionText3},
                                    {ref(kRows, u"Text4"), slot::kCaptionSymptom},
                                    {ref(kRows, u"Text5"), slot::kCaptionTreatment}};

}  // namespace

CaptionsScreen::CaptionsScreen(Services& services, RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

// The fields show the captions that the other screens have now: the practice's own, otherwise the built-in.
void CaptionsScreen::onLoad() {
  for (const CaptionField& field : kFields) {
    const QString own = m_run.settings[field.slot];
    setText(field.control, own.isEmpty() ? caption(field.control) : own);
  }
}

// Kept: the settings take the texts before the question, so that the run has them after a キャンセル too.
void CaptionsScreen::save() {
  for (const CaptionField& field : kFields) m_run.settings[field.slot] = text(field.control);
  const bool yes = messages().ask(u"治療台帳を再起動して下さい。ここで一旦、治療台帳を終了します。"_s);
  if (yes && writeSettings(*this, m_run, SettingsWriter::Other)) navigator().quit();
}

void CaptionsScreen::cancel() { navigator().unload(routes::OwnCaptions::screen); }

}  // namespace frame

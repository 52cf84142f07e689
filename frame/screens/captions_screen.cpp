#include "frame/screens/captions_screen.h"

#include "frame/core/routes.h"
#include "frame/screens/settings_writer.h"

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

constexpr ScreenRow kDeclaration{.name = u"txtbox", .caption = u"項目テキストの変更", .rows = kRows};

struct CaptionSlot {
  const char16_t* control;
  int slot;
};
constexpr CaptionSlot kSlots[] = {{u"Text1", slot::kCaptionText1},
                                  {u"Text2", slot::kCaptionText2},
                                  {u"Text3", slot::kCaptionText3},
                                  {u"Text4", slot::kCaptionSymptom},
                                  {u"Text5", slot::kCaptionTreatment}};

}  // namespace

CaptionsScreen::CaptionsScreen(Services& services, RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

// The fields show the captions as the other screens have them now: the own one, else the built-in one.
void CaptionsScreen::onLoad() {
  for (const CaptionSlot& row : kSlots) {
    const QString control = QString::fromUtf16(row.control);
    const QString own = m_run.settings[row.slot];
    setText(control, own.isEmpty() ? caption(control) : own);
  }
}

// Kept: the settings take the texts before the question, so that they stay for the run after a キャンセル.
void CaptionsScreen::save() {
  for (const CaptionSlot& row : kSlots) m_run.settings[row.slot] = text(QString::fromUtf16(row.control));
  const bool yes = messages().ask(u"治療台帳を再起動して下さい。ここで一旦、治療台帳を終了します。"_s);
  m_run.lastAnswer = yes ? 1 : 0;
  if (yes && writeSettings(*this, m_run, SettingsWriter::Other)) navigator().quit();
}

void CaptionsScreen::cancel() { navigator().unload(routes::OwnCaptions::screen); }

}  // namespace frame

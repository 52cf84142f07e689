#include "frame/screens/licence_screen.h"

#include "frame/core/routes.h"
#include "frame/screens/settings_writer.h"
#include "platform/screen/declare.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Unbound kSetting{u"a setting"};

constexpr Row kRows[] = {
    Group{.name = {u"Frame1"}, .caption = u"免許番号", .columns = 1},
    TextField{.name = {u"Text1"}, .caption = u"鍼師 免許番号", .bind = kSetting},
    TextField{.name = {u"Text2"}, .caption = u"灸師 免許番号", .bind = kSetting},
    TextField{.name = {u"Text3"}, .caption = u"あん摩マッサージ指圧師 免許番号", .bind = kSetting},
    Check{.name = {u"Check1"},
          .caption = u"登録記号番号の場所に免許番号を印刷する場合は、チェックを入れてください。"
                     u"但し、受領委任の保険者のチェックがある申請書には、登録記号番号を印刷します。",
          .bind = kSetting},
    EndGroup{},
    Bar{},
    Command{.name = {u"Command1"}, .caption = u"登録", .run = run<&LicenceScreen::save>},
    Command{.name = {u"Command2"}, .caption = u"キャンセル", .run = run<&LicenceScreen::cancel>},
    EndBar{},
};

constexpr ScreenRow kDeclaration = declare(
    {.name = routes::Licences::screen, .caption = u"免許番号", .rows = kRows, .heading = u"免許番号"});

struct LicenceField {
  ControlRef control;
  slot::Slot slot;
};
constexpr LicenceField kNumbers[] = {{ref(kRows, u"Text1"), slot::kLicenceHari},
                                     {ref(kRows, u"Text2"), slot::kLicenceKyu},
                                     {ref(kRows, u"Text3"), slot::kLicenceMassage}};
constexpr ControlRef kPrinted = ref(kRows, u"Check1");

}  // namespace

LicenceScreen::LicenceScreen(Services& services, RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

void LicenceScreen::onLoad() {
  for (const LicenceField& number : kNumbers) setText(number.control, m_run.settings[number.slot]);
  setChecked(kPrinted, m_run.settings[slot::kPrintLicence] == u"2");
}

void LicenceScreen::save() {
  for (const LicenceField& number : kNumbers) m_run.settings[number.slot] = text(number.control);
  m_run.settings[slot::kPrintLicence] = checked(kPrinted) ? u"2"_s : u"0"_s;
  if (writeSettings(*this, m_run, SettingsWriter::Other)) navigator().unload(routes::Licences::screen);
}

void LicenceScreen::cancel() { navigator().unload(routes::Licences::screen); }

}  // namespace frame

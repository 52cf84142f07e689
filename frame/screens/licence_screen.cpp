#include "frame/screens/licence_screen.h"

#include "frame/core/routes.h"
#include "frame/screens/settings_writer.h"

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

constexpr ScreenRow kDeclaration{
    .name = u"登録4", .caption = u"免許番号", .rows = kRows, .heading = u"免許番号"};

}  // namespace

LicenceScreen::LicenceScreen(Services& services, RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

void LicenceScreen::onLoad() {
  setText(u"Text1"_s, m_run.settings[slot::kLicenceHari]);
  setText(u"Text2"_s, m_run.settings[slot::kLicenceKyu]);
  setText(u"Text3"_s, m_run.settings[slot::kLicenceMassage]);
  setChecked(u"Check1"_s, m_run.settings[slot::kPrintLicence] == u"2");
}

void LicenceScreen::save() {
  m_run.settings[slot::kLicenceHari] = text(u"Text1"_s);
  m_run.settings[slot::kLicenceKyu] = text(u"Text2"_s);
  m_run.settings[slot::kLicenceMassage] = text(u"Text3"_s);
  m_run.settings[slot::kPrintLicence] = checked(u"Check1"_s) ? u"2"_s : u"0"_s;
  if (writeSettings(*this, m_run, SettingsWriter::Other)) navigator().unload(routes::Licences::screen);
}

void LicenceScreen::cancel() { navigator().unload(routes::Licences::screen); }

}  // namespace frame

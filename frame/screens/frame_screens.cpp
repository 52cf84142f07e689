#include "frame/screens/frame_screens.h"

#include "frame/screens/about_screen.h"
#include "frame/screens/captions_screen.h"
#include "frame/screens/fee_screen.h"
#include "frame/screens/folders_screen.h"
#include "frame/screens/help_text_screen.h"
#include "frame/screens/licence_screen.h"
#include "frame/screens/main_menu_screen.h"
#include "frame/screens/profile_screen.h"
#include "frame/screens/prompts.h"
#include "frame/screens/splash_screen.h"
#include "frame/screens/topics_screen.h"
#include "platform/screen/prompt_list.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

void registerScreens(screen::ScreenRegistry& registry, screen::Services&, RunState& run) {
  registry.add<SplashScreen>(u"frmSplash"_s, run);
  registry.add<MainMenuScreen>(u"選択3"_s, run);
  registry.add<TopicsScreen>(u"topics"_s, run);
  registry.add<AboutScreen>(u"frmAbout"_s);
  registry.add<FoldersScreen>(u"LANフォルダ指定"_s, run);
  registry.add<ProfileScreen>(u"登録"_s, run);
  registry.add<LicenceScreen>(u"登録4"_s, run);
  registry.add<CaptionsScreen>(u"txtbox"_s, run);
  registry.add<FeeScreen>(u"料金変更"_s, run);
  registry.add<HelpTextScreen>(u"テキストヘルプ"_s, run);
  screen::addPrompts(registry, prompts(), promptActions(run));
}

}  // namespace frame

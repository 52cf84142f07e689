#include "frame/screens/frame_screens.h"

#include "frame/core/routes.h"
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
  registry.add<routes::Splash, SplashScreen>(run);
  registry.add<routes::MainMenu, MainMenuScreen>(run);
  registry.add<routes::Topics, TopicsScreen>(run);
  registry.add<routes::About, AboutScreen>();
  registry.add<routes::Folders, FoldersScreen>(run);
  registry.add<routes::Profile, ProfileScreen>(run);
  registry.add<routes::Licences, LicenceScreen>(run);
  registry.add<routes::OwnCaptions, CaptionsScreen>(run);
  registry.add<routes::Fees, FeeScreen>(run);
  registry.add<routes::TextHelp, HelpTextScreen>(run);
  screen::addPrompts(registry, prompts(), promptActions(run));
}

}  // namespace frame

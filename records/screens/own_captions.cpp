#include "records/screens/own_captions.h"

namespace records {

void applyOwnCaptions(screen::Screen& screen, const frame::SettingsSlots& settings,
                      std::span<const OwnCaption> captions) {
  for (const OwnCaption& own : captions) {
    const QString caption = settings[own.slot];
    if (!caption.isEmpty()) screen.setCaption(own.control, caption);
  }
}

}  // namespace records

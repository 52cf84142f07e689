#pragma once

#include <span>

#include "frame/core/settings_slots.h"
#include "platform/screen/declare.h"
#include "platform/screen/screen.h"

namespace records {

/// A field whose caption the practice may change (項目テキストの変更), and the setting of that caption.
struct OwnCaption {
  int slot;
  screen::ControlRef control;
};

/// Puts the captions of the practice's own on the fields; a blank setting leaves the field's own caption.
void applyOwnCaptions(screen::Screen& screen, const frame::SettingsSlots& settings,
                      std::span<const OwnCaption> captions);

}  // namespace records

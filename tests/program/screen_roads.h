#pragma once

#include <QtCore/qnamespace.h>

#include <span>
#include <vector>

namespace program {

/// A key on a control of an open screen.
struct Step {
  const char16_t* screen;
  const char16_t* control;
  Qt::Key key = Qt::Key_Space;
};

/// How a screen is reached in a program with rows in its files: the first screen is shown, then the keys of
/// the steps lead on.
struct Road {
  const char16_t* screen;
  std::vector<Step> steps = {};
  const char16_t* way = u"";  ///< added to the stem of the file where a screen is heard in several states
};

/// The screens that are heard with values: all that have a source, and those that show rows or settings.
std::span<const Road> screenRoads();

}  // namespace program

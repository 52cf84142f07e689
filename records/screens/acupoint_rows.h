#pragma once

#include <array>

#include "platform/screen/rows.h"

namespace records {

/// The columns of the acupoint table that a search may look in, in the order of their list.
inline constexpr std::array kAcupointKeys = {u"経穴名漢字", u"経穴名かな", u"取穴位置",  u"筋肉",
                                             u"運動神経",   u"知覚神経",   u"血管",      u"刺入方法",
                                             u"主適応",     u"部位",       u"経絡コード"};

/// frm経穴.
extern const screen::ScreenRow kAcupointScreen;

}  // namespace records

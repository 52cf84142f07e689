#pragma once

#include "claims/core/tick_names.h"

namespace claims {

/// Ticks of the claim form that printing asks for. All but `delegated` are switches of the next print and
/// have no column.
struct FormTicks {
  bool olderPaper = false;           ///< 旧用紙で印刷
  bool olderPaperItemsOnly = false;  ///< 旧用紙で項目のみ印刷
  bool publicAid = false;            ///< 公費の印刷
  bool freeVisits = false;           ///< days without a visit charge: ◎ in the place of ○
  bool itemsOnly = false;            ///< 項目のみ印刷: the paper is printed already
  bool eraLetter = false;            ///< 元号のRの追加, in the month of the previous report
  bool delegated = false;            ///< 受領委任, column c24
  bool insuredMark = false;  ///< the mark 本人 of the upper right box, in addition to the claim's own

  bool operator==(const FormTicks&) const = default;
};

/// The check boxes of the ticks.
inline constexpr TickName<FormTicks> kFormTicks[] = {
    {u"Check5", &FormTicks::olderPaper}, {u"Check6", &FormTicks::olderPaperItemsOnly},
    {u"Check7", &FormTicks::publicAid},  {u"Check8", &FormTicks::freeVisits},
    {u"Check13", &FormTicks::itemsOnly}, {u"Check17", &FormTicks::eraLetter},
    {u"Check50", &FormTicks::delegated}, {u"Check_Print_Option1", &FormTicks::insuredMark},
};
static_assert(namesEveryTick(kFormTicks));

/// Whether the claim form has a check box for the tick. `insuredMark` is known to the print mapping alone.
constexpr bool onClaimForm(const TickName<FormTicks>& row) { return row.tick != &FormTicks::insuredMark; }

}  // namespace claims

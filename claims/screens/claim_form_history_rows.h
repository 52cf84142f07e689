#pragma once

#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"
#include "platform/store/tables/claims.h"

namespace claims::form {

using namespace screen;
using Form = ClaimFormScreen;

/// Page 既往症.
inline constexpr Row kHistory[] = {
    Page{u"既往症"},
    Bar{},
    Note{.name = {u"LabelHistory"}, .caption = u"施術録に印刷されます。申請書には印刷されません。"},
    EndBar{},
    Group{{u"FrameHistory"}, u"施術録の記録", 2},
    rows::memo({u"txtFields", 140}, u"既往症:", claim::history),
    rows::memo({u"txtFields", 141}, u"主要症状:", claim::mainSymptoms),
    rows::memo({u"txtFields", 142}, u"経過:", claim::course),
    rows::memo({u"txtFields", 143}, u"施術経過所見:", claim::findings),
    rows::memo({u"txtFields", 144}, u"備考:", claim::remarks),
    EndGroup{},
};

// Columns that came over the years and that the later reports and route sheets fill. They are shown here,
// so that nothing that is stored with a claim is out of reach.
/// Page 既往症, the reserve columns.
inline constexpr Row kReserve[] = {
    Group{{u"FrameReserve"}, u"予備", 3},
    rows::field({u"txtFields", 150}, u"予備 c4:", claim::treatmentSpare4),
    rows::field({u"txtFields", 151}, u"予備 c5:", claim::treatmentSpare5),
    rows::field({u"txtFields", 152}, u"予備 c7:", claim::spareC7),
    rows::field({u"txtFields", 153}, u"予備 c17:", claim::spareC17),
    rows::field({u"txtFields", 154}, u"予備 c25:", claim::spareC[25]),
    rows::field({u"txtFields", 155}, u"予備 c26:", claim::spareC[26]),
    rows::field({u"txtFields", 156}, u"予備 c27:", claim::spareC[27]),
    rows::field({u"txtFields", 157}, u"予備 c28:", claim::spareC[28]),
    rows::field({u"txtFields", 158}, u"予備 c29:", claim::spareC[29]),
    rows::field({u"txtFields", 159}, u"予備 c30:", claim::spareC[30]),
    rows::field({u"txtFields", 160}, u"予備 d16:", claim::spareD16),
    rows::field({u"txtFields", 161}, u"予備 txt dummy14:", claim::spareText[14]),
    rows::field({u"txtFields", 162}, u"予備 txt dummy15:", claim::spareText[15]),
    rows::field({u"txtFields", 163}, u"予備 txt dummy16:", claim::spareText[16]),
    rows::field({u"txtFields", 164}, u"予備 txt dummy17:", claim::spareText[17]),
    rows::field({u"txtFields", 165}, u"予備 txt dummy18:", claim::spareText[18]),
    rows::field({u"txtFields", 166}, u"予備 txt dummy19:", claim::spareText[19]),
    rows::field({u"txtFields", 167}, u"予備 txt dummy20:", claim::spareText[20]),
    rows::field({u"txtFields", 168}, u"予備 txtdummy21:", claim::noteText[21]),
    rows::field({u"txtFields", 169}, u"予備 txtdummy22:", claim::noteText[22]),
    rows::field({u"txtFields", 170}, u"予備 txtdummy23:", claim::noteText[23]),
    rows::field({u"txtFields", 171}, u"予備 txtdummy24:", claim::noteText[24]),
    rows::field({u"txtFields", 172}, u"予備 txtdummy25:", claim::printNewRemarks),
    rows::field({u"txtFields", 173}, u"予備 txtdummy29:", claim::noteText29),
    rows::field({u"txtFields", 174}, u"予備 txtdummy30:", claim::noteText30),
    EndGroup{},
    Group{{u"FrameReserveMemo"}, u"予備のメモ", 2},
    rows::memo({u"txtFields", 180}, u"予備 memo dummy1:", claim::spareMemo[1], rows::kLongText),
    rows::memo({u"txtFields", 181}, u"予備 memo dummy2:", claim::spareMemo[2], rows::kLongText),
    rows::memo({u"txtFields", 182}, u"予備 memo dummy3:", claim::spareMemo[3], rows::kLongText),
    rows::memo({u"txtFields", 183}, u"予備 memo dummy4:", claim::spareMemo[4], rows::kLongText),
    rows::memo({u"txtFields", 184}, u"予備 memo dummy5:", claim::spareMemo[5], rows::kLongText),
    rows::memo({u"txtFields", 185}, u"予備 memo dummy6:", claim::spareMemo[6], rows::kLongText),
    rows::memo({u"txtFields", 186}, u"予備 memodummy12:", claim::spareMemo12, rows::kLongText),
    rows::memo({u"txtFields", 187}, u"予備 memodummy13:", claim::spareMemo13, rows::kLongText),
    rows::memo({u"txtFields", 188}, u"予備 memodummy15:", claim::spareMemo15, rows::kLongText),
    rows::memo({u"txtFields", 189}, u"予備 memodummy16:", claim::spareMemo16, rows::kLongText),
    EndGroup{},
};

}  // namespace claims::form

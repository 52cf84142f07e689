#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"

namespace claims {

using namespace screen;
using namespace rows;

namespace {

constexpr Row kRows[] = {
    Page{u"既往症"},
    Bar{},
    Note{.name = {u"LabelHistory"}, .caption = u"施術録に印刷されます。申請書には印刷されません。"},
    EndBar{},
    Group{{u"FrameHistory"}, u"施術録の記録", 2},
    memo({u"txtFields", 140}, u"既往症:", Column{u"既往症"}),
    memo({u"txtFields", 141}, u"主要症状:", Column{u"主要症状"}),
    memo({u"txtFields", 142}, u"経過:", Column{u"経過"}),
    memo({u"txtFields", 143}, u"施術経過所見:", Column{u"施術経過所見"}),
    memo({u"txtFields", 144}, u"備考:", Column{u"備考"}),
    EndGroup{},
};

// Columns that came over the years and that the later reports and route sheets fill. They are shown here,
// so that nothing that is kept with a claim is out of reach.
constexpr Row kReserve[] = {
    Group{{u"FrameReserve"}, u"予備", 3},
    field({u"txtFields", 150}, u"予備 c4:", Column{u"c4", 2}),
    field({u"txtFields", 151}, u"予備 c5:", Column{u"c5", 2}),
    field({u"txtFields", 152}, u"予備 c7:", Column{u"c7", 2}),
    field({u"txtFields", 153}, u"予備 c17:", Column{u"c17", 2}),
    field({u"txtFields", 154}, u"予備 c25:", Column{u"c25", 2}),
    field({u"txtFields", 155}, u"予備 c26:", Column{u"c26", 2}),
    field({u"txtFields", 156}, u"予備 c27:", Column{u"c27", 2}),
    field({u"txtFields", 157}, u"予備 c28:", Column{u"c28", 2}),
    field({u"txtFields", 158}, u"予備 c29:", Column{u"c29", 2}),
    field({u"txtFields", 159}, u"予備 c30:", Column{u"c30", 2}),
    field({u"txtFields", 160}, u"予備 d16:", Column{u"d16", 2}),
    field({u"txtFields", 161}, u"予備 txt dummy14:", Column{u"txt dummy14", 2}),
    field({u"txtFields", 162}, u"予備 txt dummy15:", Column{u"txt dummy15", 2}),
    field({u"txtFields", 163}, u"予備 txt dummy16:", Column{u"txt dummy16", 2}),
    field({u"txtFields", 164}, u"予備 txt dummy17:", Column{u"txt dummy17", 2}),
    field({u"txtFields", 165}, u"予備 txt dummy18:", Column{u"txt dummy18", 2}),
    field({u"txtFields", 166}, u"予備 txt dummy19:", Column{u"txt dummy19", 2}),
    field({u"txtFields", 167}, u"予備 txt dummy20:", Column{u"txt dummy20", 2}),
    field({u"txtFields", 168}, u"予備 txtdummy21:", Column{u"txtdummy21", 2}),
    field({u"txtFields", 169}, u"予備 txtdummy22:", Column{u"txtdummy22", 2}),
    field({u"txtFields", 170}, u"予備 txtdummy23:", Column{u"txtdummy23", 2}),
    field({u"txtFields", 171}, u"予備 txtdummy24:", Column{u"txtdummy24", 2}),
    field({u"txtFields", 172}, u"予備 txtdummy25:", Column{u"txtdummy25", 2}),
    field({u"txtFields", 173}, u"予備 txtdummy29:", Column{u"txtdummy29", 2}),
    field({u"txtFields", 174}, u"予備 txtdummy30:", Column{u"txtdummy30", 2}),
    EndGroup{},
    Group{{u"FrameReserveMemo"}, u"予備のメモ", 2},
    memo({u"txtFields", 180}, u"予備 memo dummy1:", Column{u"memo dummy1", 2}, kLongText),
    memo({u"txtFields", 181}, u"予備 memo dummy2:", Column{u"memo dummy2", 2}, kLongText),
    memo({u"txtFields", 182}, u"予備 memo dummy3:", Column{u"memo dummy3", 2}, kLongText),
    memo({u"txtFields", 183}, u"予備 memo dummy4:", Column{u"memo dummy4", 2}, kLongText),
    memo({u"txtFields", 184}, u"予備 memo dummy5:", Column{u"memo dummy5", 2}, kLongText),
    memo({u"txtFields", 185}, u"予備 memo dummy6:", Column{u"memo dummy6", 2}, kLongText),
    memo({u"txtFields", 186}, u"予備 memodummy12:", Column{u"memodummy12", 2}, kLongText),
    memo({u"txtFields", 187}, u"予備 memodummy13:", Column{u"memodummy13", 2}, kLongText),
    memo({u"txtFields", 188}, u"予備 memodummy15:", Column{u"memodummy15", 2}, kLongText),
    memo({u"txtFields", 189}, u"予備 memodummy16:", Column{u"memodummy16", 2}, kLongText),
    EndGroup{},
};

}  // namespace

screen::Rows claimHistoryRows() { return kRows; }
screen::Rows claimReserveRows() { return kReserve; }

}  // namespace claims

#include "claims/core/tally_visits.h"

namespace claims {
namespace {

constexpr std::array<const char16_t*, kTokens> kNames = {
    u"a",  u"b",  u"c",  u"d",  u"e",  u"f",  u"g1", u"g2", u"g3", u"g4", u"g5", u"i1", u"i2",
    u"i3", u"i4", u"i5", u"j1", u"j2", u"j3", u"j4", u"j5", u"h1", u"h2", u"h3", u"h4"};

/// One day while it is tallied.
struct Day {
  VisitsTally& tally;
  VisitForm form;
  bool treated = false;

  /// Whether the day is paid by the plain fee: no visit, or a sudden one, which is charged in addition.
  bool plain() const { return form == VisitForm::None || form == VisitForm::Sudden; }

  void add(char16_t letter, int number = 0) {
    const auto token = static_cast<size_t>(tokenIndex(letter, number));
    treated = true;
    if (plain() || letter == u'h') ++tally.plain[token];
    VisitCounts& visits = tally.visits[token];
    switch (form) {
      case VisitForm::Sudden:
        ++visits.sudden;
        break;
      case VisitForm::One:
        ++visits.one;
        break;
      case VisitForm::Two:
        ++visits.two;
        break;
      case VisitForm::Small:
        ++visits.small;
        break;
      case VisitForm::Large:
        ++visits.large;
        break;
      default:
        break;
    }
    if (letter == u'i') ++tally.warm;
    if (letter == u'j') ++tally.warmLight;
    if (letter <= u'f') addArt(letter);
  }

  void addArt(char16_t letter) {
    if (tally.first == 0) tally.first = letter;
    if (letter == u'b' || letter == u'd' || letter == u'f') ++tally.electric;
    if (!plain()) return;
    if (letter <= u'b') ++tally.hari;
    if (letter == u'c' || letter == u'd') ++tally.kyu;
    ++(letter <= u'd' ? tally.oneArt : tally.twoArts);
  }
};

void addDay(VisitsTally& tally, const DayCode& code, VisitForm form) {
  Day day{tally, form};
  if (code.exact() >= u'a' && code.exact() <= u'f') day.add(code.exact());
  if (code.hasToken()) {
    for (const char16_t letter : {u'g', u'i', u'j', u'h'})
      for (int number = 1; number <= (letter == u'h' ? 4 : 5); ++number)
        if (code.has(letter, number)) day.add(letter, number);
  }
  if (!day.treated) return;
  if (form == VisitForm::Sudden) ++tally.suddenDays;
  if (form != VisitForm::None && form != VisitForm::Unknown) ++tally.visitDays;
}

}  // namespace

int VisitCounts::of(int form) const {
  switch (form) {
    case 0:
      return one;
    case 1:
      return two;
    case 2:
      return small;
    default:
      return large;
  }
}

int tokenIndex(char16_t letter, int number) {
  if (letter >= u'a' && letter <= u'f') return letter - u'a';
  if (number < 1 || number > (letter == u'h' ? 4 : 5)) return -1;
  switch (letter) {
    case u'g':
      return 5 + number;
    case u'i':
      return 10 + number;
    case u'j':
      return 15 + number;
    case u'h':
      return 20 + number;
    default:
      return -1;
  }
}

const char16_t* tokenName(int index) { return kNames.at(static_cast<size_t>(index)); }

int VisitsTally::areaVisits(int areas, int form) const {
  return visitsOf(u'g', areas).of(form) + visitsOf(u'i', areas).of(form) + visitsOf(u'j', areas).of(form);
}

int VisitsTally::artVisits(int arts, int form) const {
  int days = 0;
  for (char16_t letter = arts == 1 ? u'a' : u'e'; letter <= (arts == 1 ? u'd' : u'f'); ++letter)
    days += visitsOf(letter).of(form);
  return days;
}

VisitsTally tallyVisits(const ClaimRecord& claim) {
  VisitsTally tally;
  for (int day = 1; day <= 31; ++day) {
    const DayCode code(claim.code(day));
    if (code.blank()) continue;
    ++tally.treatmentDays;
    addDay(tally, code, visitForm(claim.visit(day)));
  }
  return tally;
}

}  // namespace claims

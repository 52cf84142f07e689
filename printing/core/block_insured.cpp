#include "claims/core/print_fields.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr ItemSize kCard[] = {{17, u"Name2_1"}, {24, u"Name2_2"}, {kAnyLength, u"Name2_3"}};
constexpr ItemSize kTreatedName[] = {{10, u"Name8"}, {kAnyLength, u"Name5_4"}};
constexpr ItemSize kIllness[] = {{22, u"Name9"}, {36, u"Name9_1"}, {kAnyLength, u"Name9_2"}};
constexpr ItemSize kCauseDetail[] = {{10, u"dai3_ta"}, {kAnyLength, u"dai3_ta1"}};
constexpr DateItems kOnsetDate = {u"GG2", u"YY2", u"MM2", u"DD2"};
constexpr ItemFamily kBirthEra = u"wa1_";  ///< circles around the printed era words
constexpr ItemSize kPlace[] = {{29, u"sebasyo1"}, {kAnyLength, u"sebasyo2"}};

QString joined(const QStringList& parts, const QString& between) {
  QStringList filled;
  for (const QString& part : parts)
    if (!part.isEmpty()) filled << part;
  return filled.join(between);
}

void sexMark(Sheet& sheet) {
  if (!sheet.settings.on(Setting::Sex)) return;
  const QString sex = sheet.value(claim::treatedSex);
  sheet.markIf(sex == u"男", u"HHokenOtoko2");
  sheet.markIf(sex == u"女", u"HHokenOnna2");
}

void birthDate(Sheet& sheet) {
  const DateWords birth = dateWords(sheet.value(claim::treatedBirth), sheet.dates);
  const int era = eraNumber(birth.era);
  if (era != 0) sheet.markAt(kBirthEra, era);
  sheet.print(u"YY1", birth.year);
  sheet.print(u"MM1", birth.month);
  sheet.print(u"DD1", birth.day);
}

}  // namespace

void fillCardLine(Sheet& sheet) {
  // In the full width that the checks prepare; what the kind of insurance does not take is not there.
  const auto prepared = claims::printFields(sheet.claim);
  const QStringList parts{prepared.value(claim::cardSymbol1), prepared.value(claim::cardSymbol2),
                          prepared.value(claim::cardNumber)};
  sheet.fit(kCard, joined(parts, QStringLiteral("　")));
}

void fillRelation(Sheet& sheet) {
  if (!sheet.settings.on(Setting::Relation)) return;
  const bool notHead = sheet.ticked(claim::notHead);
  sheet.print(u"Zokugara", notHead ? QStringLiteral("本人") : sheet.value(claim::relation));
}

void fillTreatedPerson(Sheet& sheet) {
  sheet.copy(u"Name7", claim::treatedKana);
  sheet.fit(kTreatedName, sheet.value(claim::treatedName));
  sexMark(sheet);
  birthDate(sheet);
}

void fillOnset(Sheet& sheet) {
  printDate(sheet, kOnsetDate, sheet.value(claim::onset));
  // The massage form has a box for the cause; on the acupuncture form the consented illness is printed there.
  if (!sheet.source.acupuncture()) sheet.copy(u"Name6", claim::cause);
}

void fillConsentedIllness(Sheet& sheet) {
  const QStringList parts{sheet.value(claim::consentDisease), sheet.value(claim::consentNote)};
  sheet.fit(kIllness, joined(parts, QStringLiteral("、")));
}

void fillCause(Sheet& sheet) {
  const QString word = sheet.value(claim::workRelated);
  if (word == u"業務上" || word == u"第三者行為である") sheet.print(u"gyoumu1", word);
  if (word != u"その他") return;
  sheet.mark(u"gyoumu3");
  sheet.fit(kCauseDetail, sheet.value(claim::workRelatedOther));
}

void fillPlaceOfTreatment(Sheet& sheet) { sheet.fit(kPlace, sheet.value(claim::treatmentPlace)); }

}  // namespace printing

#include "claims/core/treatment_period.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr ItemSize kOtherDisease[] = {{7, u"Name49"}, {10, u"Name49_2"}, {kAnyLength, u"Name49_3"}};
constexpr ItemSize kSymptoms[] = {
    {32, u"Syoujyou"}, {40, u"Syoujyou1"}, {50, u"Syoujyou3"}, {kAnyLength, u"Syoujyou4"}};
constexpr DateItems kFirstDate = {u"GG7", u"YY7", u"MM7", u"DD7"};
constexpr DateItems kPeriodFrom = {u"GG9", u"YY9", u"MM9", u"DD9"};
constexpr DateItems kPeriodTo = {u"GG10", u"YY10", u"MM10", u"DD10"};
/// Marks and the ticks that set them.
constexpr ItemRow kDiseases[] = {
    {u"syoubyou1", claim::diseaseTick[1]}, {u"syoubyou2", claim::diseaseTick[2]},
    {u"syoubyou3", claim::diseaseTick[3]}, {u"syoubyou4", claim::diseaseTick[4]},
    {u"syoubyou5", claim::diseaseTick[5]}, {u"syoubyou6", claim::diseaseTick[6]}};
constexpr ItemRow kDevices[] = {{u"denryou1", claim::electricNeedle},
                                {u"denryou2", claim::electricMoxa},
                                {u"denryou3", claim::electricLight}};
/// 局所 of マッサージ: trunk and four limbs; 変形徒手矯正術: four limbs.
constexpr ItemRow kBodyParts[] = {{u"kaisu1_1", claim::areaDays[3]}, {u"kaisu1_2", claim::areaDays[4]},
                                  {u"kaisu1_3", claim::areaDays[5]}, {u"kaisu1_4", claim::areaDays[6]},
                                  {u"kaisu1_5", claim::areaDays[7]}, {u"kaisu2_1", claim::limbDays[8]},
                                  {u"kaisu2_2", claim::limbDays[9]}, {u"kaisu2_3", claim::limbDays[10]},
                                  {u"kaisu2_4", claim::limbDays[11]}};

QDate dayOfMonth(const Sheet& sheet, int day) {
  if (!sheet.month.month || day <= 0) return QDate();
  return QDate(sheet.month.month->year(), sheet.month.month->month(), day);
}

QString firstDayWord(char16_t letter) {
  switch (letter) {
    case u'a':
    case u'b':
      return QStringLiteral("はり");
    case u'c':
    case u'd':
      return QStringLiteral("きゅう");
    case u'e':
    case u'f':
      return QStringLiteral("はりきゅう併用");
    default:
      return QString();
  }
}

bool oneOf(const QString& word, std::initializer_list<const char16_t*> words) {
  return std::any_of(words.begin(), words.end(), [&](const char16_t* w) { return word == QStringView(w); });
}

}  // namespace

void fillFirstTreatment(Sheet& sheet) { printDate(sheet, kFirstDate, sheet.value(claim::firstTreatment)); }

void fillTreatmentPeriod(Sheet& sheet) {
  const claims::TreatmentPeriod period = claims::treatmentPeriod(sheet.claim, sheet.month);
  const bool fromFirstDay = sheet.settings.on(Setting::PeriodFrom) && period.firstTreated > 0;
  if (!fromFirstDay && !period.startText.isEmpty())
    printDate(sheet, kPeriodFrom, period.startText);
  else
    printDate(sheet, kPeriodFrom, dayOfMonth(sheet, fromFirstDay ? period.firstTreated : period.startDay));

  const bool toLastDay = sheet.settings.off(Setting::PeriodTo) && period.lastTreated > 0;
  printDate(sheet, kPeriodTo, dayOfMonth(sheet, toLastDay ? period.lastTreated : period.endDay));
}

void markRequestAndOutcome(Sheet& sheet) {
  const QString request = sheet.value(claim::requestKind);
  if (oneOf(request, {u"新規", u"継続"})) sheet.print(u"seikyu2", request);
  const QString outcome = sheet.value(claim::outcome);
  if (oneOf(outcome, {u"継続", u"治癒", u"中止", u"転医"})) sheet.print(u"tenki4", outcome);
  const QString hospital = sheet.value(claim::hospitalised);
  if (oneOf(hospital, {u"入院外", u"入院"})) sheet.print(u"nyuuin2", hospital);
}

void fillDiseases(Sheet& sheet) {
  if (!sheet.source.acupuncture()) return;
  sheet.markTicked(kDiseases);
  if (sheet.fit(kOtherDisease, sheet.value(claim::diseaseOther))) sheet.mark(u"syoubyou7");
  const QString note = sheet.value(claim::diseaseNote);
  if (!note.isEmpty()) sheet.print(u"Name50", u'(' + note + u')');
}

void fillSymptoms(Sheet& sheet) {
  if (!sheet.source.acupuncture()) sheet.fit(kSymptoms, sheet.value(claim::consentSymptom));
}

void markElectricDevices(Sheet& sheet) {
  if (sheet.source.acupuncture()) sheet.markTicked(kDevices);
}

void markFirstTreatmentKind(Sheet& sheet) {
  if (!sheet.ticked(claim::hasFirst)) return;
  for (int day = 1; day <= 31; ++day) {
    const QString code = sheet.claim.code(day);
    const QString word = code.size() == 1 ? firstDayWord(code.at(0).unicode()) : QString();
    if (!word.isEmpty()) return sheet.print(u"syokaijutu3", word);
  }
}

void fillBodyPartCounts(Sheet& sheet) {
  if (!sheet.source.acupuncture()) sheet.copy(kBodyParts);
}

void fillPreviousReport(Sheet& sheet) {
  const DateWords words = dateWords(sheet.value(claim::lastReportMonth), sheet.dates);
  if (words.year.isEmpty()) return;
  const bool withLetter = sheet.source.form.eraLetter;
  sheet.print(u"YY3", withLetter ? u'R' + words.year : words.year);
  sheet.print(u"MM3", words.month);
}

}  // namespace printing

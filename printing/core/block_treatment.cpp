#include "claims/core/generic_columns.h"
#include "claims/core/treatment_period.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr Variant kOtherDisease[] = {{7, u"Name49"}, {10, u"Name49_2"}, {kAnyLength, u"Name49_3"}};
constexpr Variant kSymptoms[] = {
    {32, u"Syoujyou"}, {40, u"Syoujyou1"}, {50, u"Syoujyou3"}, {kAnyLength, u"Syoujyou4"}};
constexpr int kNamedDiseases = 6;

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

void firstTreatment(Sheet& sheet) { showDate(sheet, QStringLiteral("7"), sheet.value(u"初療年月日")); }

void treatmentPeriod(Sheet& sheet) {
  const claims::TreatmentPeriod period = claims::treatmentPeriod(sheet.claim, sheet.month);
  const bool fromFirstDay = sheet.settings.on(Setting::PeriodFrom) && period.firstTreated > 0;
  if (!fromFirstDay && !period.startText.isEmpty())
    showDate(sheet, QStringLiteral("9"), period.startText);
  else
    showDate(sheet, QStringLiteral("9"),
             dayOfMonth(sheet, fromFirstDay ? period.firstTreated : period.startDay));

  const bool toLastDay = sheet.settings.off(Setting::PeriodTo) && period.lastTreated > 0;
  showDate(sheet, QStringLiteral("10"), dayOfMonth(sheet, toLastDay ? period.lastTreated : period.endDay));
}

void requestAndOutcome(Sheet& sheet) {
  const QString request = sheet.value(u"請求区分");
  if (oneOf(request, {u"新規", u"継続"})) sheet.fields.show(u"seikyu2", request);
  const QString outcome = sheet.value(u"転帰");
  if (oneOf(outcome, {u"継続", u"治癒", u"中止", u"転医"})) sheet.fields.show(u"tenki4", outcome);
  const QString hospital = sheet.value(u"入院入院外の別");
  if (oneOf(hospital, {u"入院外", u"入院"})) sheet.fields.show(u"nyuuin2", hospital);
}

void diseases(Sheet& sheet) {
  if (!sheet.source.acupuncture()) return;
  for (int n = 1; n <= kNamedDiseases; ++n)
    sheet.fields.markIf(sheet.claim.ticked(QStringLiteral("傷病名") + QString::number(n)),
                        QStringLiteral("syoubyou") + QString::number(n));
  if (sheet.fields.variant(kOtherDisease, sheet.value(u"傷病名7"))) sheet.fields.mark(u"syoubyou7");
  const QString note = sheet.value(u"傷病名8");
  if (!note.isEmpty()) sheet.fields.show(u"Name50", u'(' + note + u')');
}

void symptoms(Sheet& sheet) {
  if (!sheet.source.acupuncture()) sheet.fields.variant(kSymptoms, sheet.value(u"同意症状"));
}

void electricDevices(Sheet& sheet) {
  if (!sheet.source.acupuncture()) return;
  const QStringView columns[] = {claims::column::kElectricNeedle, claims::column::kElectricMoxa,
                                 claims::column::kElectricLight};
  for (int n = 1; n <= 3; ++n)
    sheet.fields.markIf(sheet.ticked(columns[n - 1]), QStringLiteral("denryou") + QString::number(n));
}

void firstTreatmentKind(Sheet& sheet) {
  if (!sheet.ticked(u"初回有無")) return;
  for (int day = 1; day <= 31; ++day) {
    const QString code = sheet.claim.code(day);
    const QString word = code.size() == 1 ? firstDayWord(code.at(0).unicode()) : QString();
    if (!word.isEmpty()) return sheet.fields.show(u"syokaijutu3", word);
  }
}

void bodyPartCounts(Sheet& sheet) {
  if (sheet.source.acupuncture()) return;
  for (int part = 1; part <= 5; ++part)
    sheet.fields.show(QStringLiteral("kaisu1_") + QString::number(part),
                      sheet.claim.get(QStringLiteral("d") + QString::number(part + 2)));
  for (int limb = 1; limb <= 4; ++limb)
    sheet.fields.show(QStringLiteral("kaisu2_") + QString::number(limb),
                      sheet.claim.get(QStringLiteral("d") + QString::number(limb + 7)));
}

void previousReport(Sheet& sheet) {
  const DateWords words = dateWords(sheet.value(u"txtdummy28"), sheet.dates);
  if (words.year.isEmpty()) return;
  const bool withLetter = sheet.source.form.eraLetter;
  sheet.fields.show(u"YY3", withLetter ? u'R' + words.year : words.year);
  sheet.fields.show(u"MM3", words.month);
}

}  // namespace printing

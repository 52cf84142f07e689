#include "claims/core/treatment_period.h"
#include "printing/core/amount_boxes.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

struct LabelRow {
  Item item;
  const char16_t* text;
};
constexpr LabelRow kElderlyLabels[] = {
    {u"Text432", u"4 六外"}, {u"Text430", u"8 高外-"}, {u"Text433", u"0 高外7"}};
constexpr Item kSeals[] = {u"Line500", u"Text104", u"Line501", u"Text106", u"Line504", u"Text427"};

void printDay(Sheet& sheet, Item item, int day) {
  if (day > 0) sheet.print(item, QString::number(day));
}

}  // namespace

void applySettings(Sheet& sheet) {
  if (sheet.settings.off(Setting::ApplicantName))
    for (const Item item : {Item(u"Name5_3"), Item(u"Name5_5")}) sheet.hide(item);
  if (sheet.settings.off(Setting::ShareCircles))
    for (const Item item : {Item(u"Kyuufu_1"), Item(u"Kyuufu_2"), Item(u"Kyuufu_3")}) sheet.hide(item);
  if (sheet.settings.on(Setting::ProxyWords))
    for (const Item item : {Item(u"JUININ1"), Item(u"JUININ2"), Item(u"JUININ3")}) sheet.mark(item);
  if (sheet.settings.off(Setting::ShareAsComputed) && sheet.settings.on(Setting::Amounts))
    showShare(sheet.fields, sheet.eras.back().of(recordKind(sheet.source.kind)), QStringLiteral("0"));
}

void fillPeriodOfChiba(Sheet& sheet) {
  if (sheet.source.prefecture != frame::Prefecture::Chiba) return;
  const QString from = sheet.value(claim::consentFrom), to = sheet.value(claim::consentUntil);
  if (!from.isEmpty()) sheet.print(u"youkaryuki1", u'自' + from);
  if (!to.isEmpty()) sheet.print(u"youkaryuki2", u'至' + to);
}

void fillPeriodOfSaitama(Sheet& sheet) {
  if (sheet.source.prefecture != frame::Prefecture::Saitama) return;
  const claims::TreatmentPeriod period = claims::treatmentPeriod(sheet.claim, sheet.month);
  printDay(sheet, u"DD9", period.firstTreated);
  printDay(sheet, u"DD10", period.lastTreated);
  printDay(sheet, u"DD10_2", period.lastTreated);
}

void relabelVisitingPracticeOfAichi(Sheet& sheet) {
  if (sheet.source.prefecture != frame::Prefecture::Aichi ||
      sheet.source.profile[frame::slot::kHealthOffice] != u"出張専門施術者住所地")
    return;
  sheet.mark(u"Text66");
  sheet.print(u"Text67", QStringLiteral("住　所"));
  sheet.hide(u"Text573");
  sheet.hide(u"semeisyou1");
}

void markAttachment(Sheet& sheet) { sheet.markIf(sheet.settings.on(Setting::Attachment), u"betten1"); }

void fillLabelsOnPreprinted(Sheet& sheet) {
  if (!sheet.source.form.itemsOnly || !sheet.source.ticks.newElderlyLabels) return;
  for (const LabelRow& row : kElderlyLabels) sheet.print(row.item, QString::fromUtf16(row.text));
  if (sheet.source.edition == Edition::From201901Reiwa)
    sheet.print(u"Text382", QStringLiteral("登録記号番号（申し出た施術者登録番号）"));
}

void hideSeals(Sheet& sheet) {
  if (sheet.source.edition != Edition::From201901Reiwa || !sheet.source.ticks.sealsHidden) return;
  for (const Item item : kSeals) sheet.hide(item);
}

}  // namespace printing

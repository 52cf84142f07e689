#include "claims/core/treatment_period.h"
#include "printing/core/amount_boxes.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

struct LabelRow {
  const char16_t* item;
  const char16_t* text;
};
constexpr LabelRow kElderlyLabels[] = {
    {u"Text432", u"4 六外"}, {u"Text430", u"8 高外-"}, {u"Text433", u"0 高外7"}};
constexpr const char16_t* kSeals[] = {u"Line500", u"Text104", u"Line501", u"Text106", u"Line504", u"Text427"};

void showDay(Sheet& sheet, const char16_t* item, int day) {
  if (day > 0) sheet.fields.show(item, QString::number(day));
}

}  // namespace

void optionHides(Sheet& sheet) {
  if (sheet.settings.off(Setting::ApplicantName))
    for (const auto* item : {u"Name5_3", u"Name5_5"}) sheet.fields.hide(item);
  if (sheet.settings.off(Setting::ShareCircles))
    for (const auto* item : {u"Kyuufu_1", u"Kyuufu_2", u"Kyuufu_3"}) sheet.fields.hide(item);
  if (sheet.settings.on(Setting::ProxyWords))
    for (const auto* item : {u"JUININ1", u"JUININ2", u"JUININ3"}) sheet.fields.mark(item);
  if (sheet.settings.off(Setting::ShareAsComputed) && sheet.settings.on(Setting::Amounts))
    showShare(sheet.fields, sheet.eras.back().of(recordKind(sheet.source.kind)), QStringLiteral("0"));
}

void chibaPeriod(Sheet& sheet) {
  if (sheet.source.prefecture != u"12") return;
  const QString from = sheet.value(u"要加療期間1"), to = sheet.value(u"要加療期間2");
  if (!from.isEmpty()) sheet.fields.show(u"youkaryuki1", u'自' + from);
  if (!to.isEmpty()) sheet.fields.show(u"youkaryuki2", u'至' + to);
}

void saitamaPeriod(Sheet& sheet) {
  if (sheet.source.prefecture != u"11") return;
  const claims::TreatmentPeriod period = claims::treatmentPeriod(sheet.claim, sheet.month);
  showDay(sheet, u"DD9", period.firstTreated);
  showDay(sheet, u"DD10", period.lastTreated);
  showDay(sheet, u"DD10_2", period.lastTreated);
}

void aichiVisitingPractice(Sheet& sheet) {
  if (sheet.source.prefecture != u"23" ||
      sheet.source.profile[frame::profile::kHealthOffice] != u"出張専門施術者住所地")
    return;
  sheet.fields.mark(u"Text66");
  sheet.fields.show(u"Text67", QStringLiteral("住　所"));
  sheet.fields.hide(u"Text573");
  sheet.fields.hide(u"semeisyou1");
}

void attachmentNote(Sheet& sheet) { sheet.fields.markIf(sheet.settings.on(Setting::Attachment), u"betten1"); }

void labelsOnPreprinted(Sheet& sheet) {
  if (!sheet.source.itemsOnly || !sheet.screenCheck(u"Check2")) return;
  for (const LabelRow& row : kElderlyLabels) sheet.fields.show(row.item, QString::fromUtf16(row.text));
  if (sheet.source.option == u"Option6")
    sheet.fields.show(u"Text382", QStringLiteral("登録記号番号（申し出た施術者登録番号）"));
}

void sealsRemoved(Sheet& sheet) {
  if (sheet.source.option != u"Option6" || !sheet.screenCheck(u"Check5")) return;
  for (const char16_t* item : kSeals) sheet.fields.hide(item);
}

}  // namespace printing

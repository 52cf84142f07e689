#include "platform/text/width.h"
#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr int kNumberBoxes = 8;
constexpr int kShortNumber = 6;  ///< such an insurer number stands at the right, from box 3

bool hasDigit(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

/// The number of a late-elderly insurer behind its 39: stored without it, but taken where it was typed.
QString behind39(const QString& typed) {
  if (typed.size() < kNumberBoxes) return typed.trimmed();
  // Eight characters and more, blanks among them, do not go behind the printed 39; the claim screen says so.
  return typed.size() == kNumberBoxes && typed.startsWith(u"39") ? typed.mid(2) : QString();
}

void lateElderlyNumber(Sheet& sheet, const QString& number) {
  if (!hasDigit(number)) return;
  sheet.print(u"HokenNo_1", QStringLiteral("3"));
  sheet.print(u"HokenNo_2", QStringLiteral("9"));
  sheet.digits(u"HokenNo_", number, 3);
}

/// The claim's registration number: c14 of acupuncture, c15 of massage, which falls back to c14.
QString registrationNumber(const Sheet& sheet) {
  const QString massage = sheet.source.acupuncture() ? QString() : sheet.value(claim::registrationMassage);
  return massage.isEmpty() ? sheet.value(claim::registrationHari) : massage;
}

/// The claim's own institution number, or the practice's number of this kind of treatment.
QString associationNumber(const Sheet& sheet) {
  const QString own = sheet.value(claim::institutionNumber);
  if (!own.isEmpty()) return own;
  return sheet.source
      .profile[sheet.source.acupuncture() ? frame::slot::kInstitutionHari : frame::slot::kInstitutionMassage];
}

/// Mie chooses the institution items again: a late-elderly claim prints the late-elderly number.
void institutionCodeOfMie(Sheet& sheet, bool registered) {
  if (registered) {
    sheet.hide(u"KikanCode1");
    sheet.hide(u"KoukiCode");
  } else if (sheet.lateElderly()) {
    sheet.hide(u"KikanCode");
    sheet.hide(u"KikanCode1");
    sheet.print(u"KoukiCode",
                sheet.source.profile[sheet.source.acupuncture() ? frame::slot::kElderlyHari
                                                                : frame::slot::kElderlyMassage]);
  }
}

}  // namespace

void fillPrintDate(Sheet& sheet) {
  sheet.print(u"Date", sheet.dates.clock().today().toString(QStringLiteral("yyyy/MM/dd")));
}

void fillClaimMonth(Sheet& sheet) {
  const DateWords words = dateWords(sheet.value(claim::month), sheet.dates);
  // On preprinted paper the era word is there already.
  if (!sheet.source.form.itemsOnly) sheet.print(u"GG4", words.era);
  sheet.print(u"YY4", words.year);
  sheet.print(u"MM4", words.month);
  sheet.print(u"MM5", words.month);
}

void fillInsurerNumber(Sheet& sheet) {
  const QString typed = sheet.value(claim::insurerNumber);
  if (sheet.lateElderly()) return lateElderlyNumber(sheet, behind39(typed));
  const QString number = typed.trimmed();
  sheet.digits(u"Name0_", number, number.size() == kShortNumber ? 3 : 1);
}

void fillInstitutionCode(Sheet& sheet) {
  const QString registered = registrationNumber(sheet);
  if (!registered.isEmpty())
    sheet.print(u"KikanCode", text::toFullWidth(registered));
  else
    sheet.print(u"KikanCode1", associationNumber(sheet));
  if (sheet.source.prefecture == frame::Prefecture::Mie) institutionCodeOfMie(sheet, !registered.isEmpty());
}

void fillPublicExpenseNumbers(Sheet& sheet) {
  if (sheet.settings.on(Setting::PublicExpense)) {
    sheet.digits(u"KouhiFutan_", sheet.value(claim::publicAidNumber));
    sheet.digits(u"KouhiJyu_", sheet.value(claim::publicAidRecipient));
  }
  sheet.digits(u"Kushi_", sheet.value(claim::municipalityNumber));
  sheet.digits(u"Jyukyu_", sheet.value(claim::recipientNumber));
}

void markKindOfInsurance(Sheet& sheet) {
  if (sheet.value(claim::printedInsurance) == u"公費負担")
    sheet.mark(u"H_M_Circle2");
  else if (sheet.insuranceIs({u"後期高齢", u"老人"}))
    sheet.mark(u"H_M_Circle3");
  else if (!sheet.value(claim::insuranceKind).isEmpty())
    sheet.mark(u"H_M_Circle1");
}

void fillLeftMargin(Sheet& sheet) {
  if (!sheet.settings.on(Setting::LeftMargin)) return;
  if (sheet.insuranceIs({u"国保", u"退職国保", u"特別国保"}))
    sheet.print(u"HokenTypeT", QStringLiteral("国民健康保険"));
  else if (sheet.insuranceIs({u"共済"}))
    sheet.print(u"HokenTypeT", QStringLiteral("共済組合"));
  else if (sheet.insuranceIs({u"組合"}))
    sheet.print(u"HokenTypeT", QStringLiteral("健康保険組合"));
  sheet.markIf(sheet.insuranceIs({u"共済", u"特別国保", u"後期高齢", u"退職国保"}), u"HokenType_4");
  const QString association = sheet.value(claim::associationName);
  // Written downwards: the long-vowel mark becomes an upright stroke.
  if (!association.isEmpty()) sheet.print(u"Shikai", u'　' + QString(association).replace(u'ー', u'｜'));
}

}  // namespace printing

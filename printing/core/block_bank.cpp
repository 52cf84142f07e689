#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr ItemSize kBranch[] = {{8, u"Name47"}, {kAnyLength, u"Name471"}};
constexpr ItemSize kHolder[] = {{36, u"kouza3"}, {kAnyLength, u"kouza4"}};

/// Columns of whoever the account belongs to: the practitioner or the representative.
struct Account {
  const char16_t *bank, *postOffice, *branch, *deposit, *bankKind, *branchKind, *number, *holder, *holderKana;
};
constexpr Account kPractitioner = {u"金融機関名", u"郵便局名",       u"本店支店名",
                                   u"預金の種類", u"金融機関名種類", u"本店支店名種類",
                                   u"口座番号",   u"口座名義",       u"口座名義カタカナ"};
constexpr Account kRepresentative = {u"代表者金融機関名", u"代表者郵便局名",       u"代表者本店支店名",
                                     u"代表者預金の種類", u"代表者金融機関名種類", u"代表者本店支店名種類",
                                     u"代表者口座番号",   u"代表者口座名義",       u"代表者口座名義カタカナ"};

/// The column's text, or that of the second where it is blank.
QString either(const Sheet& sheet, const char16_t* column, const char16_t* other) {
  const QString text = sheet.value(column);
  return text.isEmpty() ? sheet.value(other) : text;
}

}  // namespace

void fillBank(Sheet& sheet) {
  sheet.copy(u"siharai_kbn", u"支払い機関区分");
  const Switch whose = sheet.settings.of(Setting::Bank);
  if (whose == Switch::Empty) return;
  const Account& account = whose == Switch::On ? kPractitioner : kRepresentative;

  // A payment through the post office names no bank.
  sheet.print(u"Name14", either(sheet, account.bank, account.postOffice));
  sheet.fit(kBranch, sheet.value(account.branch));
  // The three items circle one of the printed words.
  sheet.copy(u"yokin2", account.deposit);
  sheet.copy(u"kinyuu3", account.bankKind);
  sheet.copy(u"kinyuu6", account.branchKind);
  sheet.copy(u"kouza2", account.number);
  sheet.digits(u"kouza_num", sheet.value(account.number));
  // The box asks for katakana.
  sheet.fit(kHolder, either(sheet, account.holderKana, account.holder));
}

}  // namespace printing

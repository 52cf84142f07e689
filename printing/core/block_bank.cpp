#include "printing/core/claim_blocks.h"

namespace printing {

namespace {

constexpr ItemSize kBranch[] = {{8, u"Name47"}, {kAnyLength, u"Name471"}};
constexpr ItemSize kHolder[] = {{36, u"kouza3"}, {kAnyLength, u"kouza4"}};

/// Columns of whoever the account belongs to: the practitioner or the representative.
struct Account {
  store::Column bank, postOffice, branch, deposit, bankKind, branchKind, number, holder, holderKana;
};
constexpr Account kPractitioner = {claim::bank,    claim::postOffice,    claim::branch,
                                   claim::deposit, claim::bankKind,      claim::branchKind,
                                   claim::account, claim::accountHolder, claim::accountHolderKana};
constexpr Account kRepresentative = {
    claim::agentBank,    claim::agentPostOffice,    claim::agentBranch,
    claim::agentDeposit, claim::agentBankKind,      claim::agentBranchKind,
    claim::agentAccount, claim::agentAccountHolder, claim::agentAccountHolderKana};

/// The column's text, or that of the second where it is blank.
QString either(const Sheet& sheet, const store::Column& column, const store::Column& other) {
  const QString text = sheet.value(column);
  return text.isEmpty() ? sheet.value(other) : text;
}

}  // namespace

void fillBank(Sheet& sheet) {
  sheet.copy(u"siharai_kbn", claim::payment);
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

#include "claims/core/trim.h"

#include "claims/core/kinds.h"
#include "platform/store/tables/claims.h"

namespace claims {
namespace {

/// Limits of a column in characters, 0: none. The differences between the four columns are the papers' own.
struct LimitRow {
  store::Column column;
  int acupuncture, massage;              ///< the claim forms
  int recordAcupuncture, recordMassage;  ///< the treatment record
};

constexpr LimitRow kLimits[] = {
    {claim::employerName, 52, 52, 30, 30},
    {claim::employerAddress, 52, 52, 30, 30},
    {claim::insuredKana, 0, 22, 0, 22},
    {claim::insuredName, 22, 22, 22, 22},
    {claim::insuredAddressKana, 0, 58, 0, 58},
    {claim::insuredAddress, 60, 60, 39, 39},
    {claim::relation, 4, 4, 4, 4},
    {claim::disease, 50, 50, 50, 50},
    {claim::diseaseOther, 15, 15, 10, 10},
    {claim::diseaseNote, 10, 10, 10, 10},
    {claim::consentDisease, 26, 24, 26, 24},
    {claim::doctorAddress, 40, 40, 40, 40},
    {claim::remark[1], 14, 14, 14, 14},
    {claim::remark[4], 50, 50, 79, 79},
    {claim::remark[5], 50, 50, 79, 79},
    {claim::remark[6], 50, 50, 37, 37},
    {claim::areaCount, 1, 1, 1, 1},
    {claim::clinicName, 0, 23, 0, 0},
    {claim::practitionerKana, 0, 64, 0, 0},
    {claim::clinicAddress, 100, 100, 0, 0},
    {claim::clinicAddressKana, 0, 41, 0, 0},
    {claim::bank, 8, 8, 0, 0},
    {claim::branch, 10, 10, 0, 0},
    {claim::postOffice, 10, 10, 0, 0},
    {claim::accountHolder, 30, 24, 0, 0},
    {claim::agentKana, 0, 64, 0, 0},
    {claim::agentName, 37, 30, 0, 0},
    {claim::agentAddress, 200, 120, 0, 0},
    {claim::agentAddressKana, 0, 27, 0, 0},
    {claim::agentBank, 8, 8, 0, 0},
    {claim::agentBranch, 6, 8, 0, 0},
    {claim::agentPostOffice, 7, 8, 0, 0},
    {claim::agentAccountHolder, 30, 24, 0, 0},
};

int limitOf(const LimitRow& row, TrimForm form, bool massage) {
  if (form == TrimForm::Claim) return massage ? row.massage : row.acupuncture;
  return massage ? row.recordMassage : row.recordAcupuncture;
}

/// The first characters of a text; a character outside the basic plane counts as one and is never halved.
QString firstCharacters(const QString& text, int limit) {
  qsizetype at = 0;
  for (int taken = 0; taken < limit && at < text.size(); ++taken)
    at += text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
  return text.left(at);
}

constexpr store::Column kInsurerColumns[] = {
    claim::insurerName,      claim::insurerNumber,   claim::insurerAddress,     claim::cardSymbol1,
    claim::cardSymbol2,      claim::cardNumber,      claim::municipalityNumber, claim::recipientNumber,
    claim::municipalityName, claim::publicAidNumber, claim::publicAidRecipient};

}  // namespace

TrimResult trimForPrint(const ClaimRecord& claim, TrimForm form) {
  TrimResult result{claim, {}};
  const bool massage = kindOf(claim.get(claim::treatmentKind)) == Kind::Massage;
  for (const LimitRow& row : kLimits) {
    const int limit = limitOf(row, form, massage);
    const QString text = claim.get(row.column);
    if (limit == 0 || text.size() <= limit) continue;
    const QString cut = firstCharacters(text, limit);
    if (cut == text) continue;
    result.claim.set(row.column, cut);
    result.cut.append(row.column);
  }
  return result;
}

ClaimRecord trimInsurer(const ClaimRecord& claim) {
  ClaimRecord result = claim;
  for (const store::Column& column : kInsurerColumns) {
    const QString text = claim.get(column);
    qsizetype begin = 0, end = text.size();
    while (begin < end && text[begin] == u' ') ++begin;
    while (end > begin && text[end - 1] == u' ') --end;
    if (end - begin != text.size()) result.set(column, text.mid(begin, end - begin));
  }
  return result;
}

bool storeTrims(const QString& insurance) {
  return insurance == u"全国健康保険協会" || insurance == u"共済" || insurance == u"組合" ||
         insurance == u"社保";
}

}  // namespace claims

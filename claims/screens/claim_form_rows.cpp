#include "claims/screens/claim_form_rows.h"

#include <vector>

#include "platform/store/tables/claims.h"

namespace claims {

namespace {

std::vector<screen::Row> allRows() {
  std::vector<screen::Row> all;
  for (const screen::Rows part :
       {claimHeadRows(), claimInsuranceRows(), claimConsentRows(), claimTreatmentRows(),
        claimVisitTableRows(), claimPrintsRows(), claimPrintSettingsRows(), claimHistoryRows(),
        claimReserveRows(), claimApplicantRows()})
    all.insert(all.end(), part.begin(), part.end());
  return all;
}

}  // namespace

const screen::ScreenRow& claimFormDeclaration() {
  static const std::vector<screen::Row> all = allRows();
  static const screen::ScreenRow declaration{.name = u"frmレセプトフォーム",
                                             .caption = u"保険申請",
                                             .rows = all,
                                             .sources = {claim::firstHalf, claim::secondHalf},
                                             .heading = u"保険申請",
                                             .functionKeys = true};
  return declaration;
}

}  // namespace claims

#include "claims/screens/claim_form_rows.h"

#include "claims/screens/claim_form_applicant_rows.h"
#include "claims/screens/claim_form_consent_rows.h"
#include "claims/screens/claim_form_head_rows.h"
#include "claims/screens/claim_form_history_rows.h"
#include "claims/screens/claim_form_insurance_rows.h"
#include "claims/screens/claim_form_prints_rows.h"
#include "claims/screens/claim_form_settings_rows.h"
#include "claims/screens/claim_form_treatment_rows.h"
#include "frame/core/routes.h"
#include "platform/screen/declare.h"

namespace claims {

namespace {

constexpr auto kRows =
    screen::joined(form::kHead, form::kInsurance, form::kConsent, form::kTreatment, form::kVisitTable,
                   form::kPrints, form::kPrintPage, form::kHistory, form::kReserve, form::kApplicant);

}  // namespace

constinit const screen::ScreenRow kClaimFormScreen =
    screen::declare({.name = routes::ClaimForm::screen,
                     .caption = u"保険申請",
                     .rows = kRows,
                     .sources = {claim::firstHalf, claim::secondHalf},
                     .heading = u"保険申請",
                     .functionKeys = true});

}  // namespace claims

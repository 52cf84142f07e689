#include "claims/screens/claim_form_display.h"

#include "claims/screens/claim_form_screen.h"

namespace claims {

ClaimRecord ClaimFormDisplay::record() const { return m_form.record(); }
FormTicks ClaimFormDisplay::checks() const { return m_form.checks(); }
quintptr ClaimFormDisplay::window() const { return m_form.winId(); }
void ClaimFormDisplay::put(const store::Column& column, const QString& text) { m_form.put(column, text); }

}  // namespace claims

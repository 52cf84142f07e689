#pragma once

#include "claims/core/claims_state.h"

namespace claims {

class ClaimFormScreen;

/// The claim form as the printing, computing and helper screens see it.
class ClaimFormDisplay final : public ClaimOnDisplay {
 public:
  explicit ClaimFormDisplay(ClaimFormScreen& form) : m_form(form) {}

  ClaimRecord record() const override;
  FormTicks checks() const override;
  quintptr window() const override;
  void put(const store::Column& column, const QString& text) override;

 private:
  ClaimFormScreen& m_form;
};

}  // namespace claims

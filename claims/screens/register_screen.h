#pragma once

#include <optional>

#include "claims/core/claims_state.h"
#include "claims/core/register.h"
#include "frame/core/run_state.h"
#include "platform/screen/screen.h"

namespace claims {

/// 登録2 and 登録3: the registers that spare the typing of the same names on every claim.
///
/// 登録 alone stores, and never a row with a blank field. What was typed and not stored is asked for before
/// the row is left.
///
/// Opened with Request{"ID"} by the claim form: what the form shows of a doctor or insurer that the register
/// does not hold stands in a new row, ready to be stored.
class RegisterScreen final : public screen::Screen {
 public:
  RegisterScreen(const screen::ScreenRow& declaration, const Register& list, screen::Services& services,
                 frame::RunState& run, ClaimsState& state);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  bool onCloseBox() override;
  void goFirst() override;
  void goPrevious() override;
  void goNext() override;
  void goLast() override;

  void startNew();
  void store();
  void remove();
  /// Shows the rows of the whole register that hold the text in the chosen column.
  void search();
  void copyToClaim();
  void finish();

 private:
  bool leaveRow();
  /// What the fields show, in their order.
  QStringList texts() const;
  /// A new row with the texts, which were not typed: leaving it loses nothing.
  bool offerNew(const QStringList& texts);
  /// All rows as the file holds them now; nothing where it cannot be read, which was told.
  std::optional<store::RecordSet> wholeRegister();
  /// Brings the values of the claim on the form: to their row, or into a new one.
  void takeFromClaim();
  QStringList onView() const;
  void step(void (screen::DataSource::*move)());

  const Register& m_list;
  frame::RunState& m_run;
  ClaimsState& m_state;
  QStringList m_offered;  ///< what a new row was begun with
  bool m_fromClaim = false;
};

}  // namespace claims

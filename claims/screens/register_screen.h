#pragma once

#include <optional>

#include "claims/core/claims_state.h"
#include "claims/core/register.h"
#include "frame/core/run_state.h"
#include "platform/screen/record_screen.h"

namespace claims {

/// A register's screen: its declaration, the register, and what it says.
struct RegisterForm {
  const screen::ScreenRow& declaration;
  const Register& list;
  screen::RecordWords words;
};
extern const RegisterForm kDoctorRegisterForm;   ///< 登録2
extern const RegisterForm kInsurerRegisterForm;  ///< 登録3

/// 登録2 and 登録3: the registers that spare the typing of the same names on every claim.
///
/// 登録 alone stores, and never a row with a blank field. What was typed and not stored is asked for before
/// the row is left. Opened from the claim form, a doctor or insurer that the form shows and the register
/// lacks is put into a new row, ready to be stored.
class RegisterScreen final : public screen::RecordScreen {
 public:
  RegisterScreen(const RegisterForm& form, screen::Services& services, frame::RunState& run,
                 ClaimsState& state);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  bool onCloseBox() override;

  void startNew();
  /// Shows the rows of the whole register that contain the text in the chosen column.
  void search();
  void copyToClaim();
  void finish();

 protected:
  QStringList rowInWords() const override;
  void sayStored() override;
  void sayDone(const QString& done) override;
  bool readyToStore() override;
  bool mayLeaveRow() override;

 private:
  /// What the fields show, in their order.
  QStringList texts() const;
  /// A new row with the texts, which were not typed: leaving it loses nothing.
  bool offerNew(const QStringList& texts);
  /// All rows as the file has them now; nothing: it cannot be read, which was reported.
  std::optional<store::RecordSet> wholeRegister();
  /// Brings the values of the claim on the form: to their row, or into a new one.
  void takeFromClaim();
  QString count() const;

  const Register& m_list;
  frame::RunState& m_run;
  ClaimsState& m_state;
  QStringList m_offered;  ///< what a new row was begun with
  bool m_fromClaim = false;
};

}  // namespace claims

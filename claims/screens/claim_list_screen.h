#pragma once

#include <optional>

#include "claims/core/claim_file.h"
#include "claims/core/claims_state.h"
#include "frame/core/run_state.h"
#include "platform/screen/list_screen.h"
#include "platform/screen/run_when_activated.h"

namespace claims {

/// レセプト一覧表: the list of all claims. It lists the first halves, newest at the top; opening, deleting
/// and making a claim keep the second halves in step.
///
/// A search narrows the set on view and leaves it where there is no hit; the filter by a patient shows an
/// empty list too. 全患者表示及び再表示 and 更新 read the whole table again; a claim made elsewhere meanwhile
/// is not in the list before that.
class ClaimListScreen : public screen::ListScreen {
 public:
  ClaimListScreen(screen::Services& services, frame::RunState& run, ClaimsState& state);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  void onActivate() override;
  bool onCloseBox() override;
  void rowShown(int sourceNumber) override;

  /// Opens the form on the row. A first half without its second half gets one on the spot, so that the pair
  /// exists.
  void openClaim();
  void showAll();
  void askSort();
  void refresh();
  void search();
  void removeClaim();
  void finish();

 protected:
  bool openWhole() override;
  QStringList rowOnView() const override;
  QStringList countOnView() const override;

 private:
  void growSecondFile();
  /// What came of growing the second file, and that the list is empty.
  void tellOpening();
  qint64 currentId() const;
  /// Both files; nothing: one of them cannot be opened, which was reported.
  std::optional<ClaimFile> claimFile();

  frame::RunState& m_run;
  ClaimsState& m_state;
  QString m_growthFault;  ///< until it was reported
  screen::RunWhenActivated m_whenActivated;
};

}  // namespace claims

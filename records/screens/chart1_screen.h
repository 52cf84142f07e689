#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/record_screen.h"
#include "platform/screen/run_when_activated.h"

namespace records {

/// 治療台帳2 (カルテ１): the long texts of a patient. It has no table of its own but shows the patient
/// master. How it is entered: routes::PatientTexts.
class Chart1Screen : public screen::RecordScreen {
 public:
  Chart1Screen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  void onActivate() override;
  bool onCloseBox() override;
  QStringList openingTexts() const override;

  void update();
  void updateAfterWarning();
  void toSeireki();
  void toWareki();
  void copyNow();
  void closeDictionaries();
  void finish();

 protected:
  QStringList rowInWords() const override;
  /// What was typed is stored.
  bool mayLeaveRow() override { return source().write(); }

 private:
  void find(const QString& serial);
  void store();
  frame::RunState& m_run;
  QString m_called;  ///< name of the patient whose chart was asked for
  screen::RunWhenActivated m_whenActivated;
};

}  // namespace records

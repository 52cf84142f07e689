#pragma once

#include "frame/core/run_state.h"
#include "platform/screen/once_active.h"
#include "platform/screen/screen.h"

namespace records {

/// 治療台帳2 (カルテ１): the long texts of the patient master, on one patient. It holds no data of its own.
///
/// Request keys: "テキスト5" (the serial of the patient), "氏名" (announced).
class Chart1Screen : public screen::Screen {
 public:
  Chart1Screen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void opened(const screen::Request& request) override;
  void onActivate() override;
  bool onCloseBox() override;
  QStringList openingTexts() const override;
  void goFirst() override { step(&screen::DataSource::moveFirst); }
  void goPrevious() override { step(&screen::DataSource::movePrevious); }
  void goNext() override { step(&screen::DataSource::moveNext); }
  void goLast() override { step(&screen::DataSource::moveLast); }

  void update();
  void updateAfterWarning();
  void toSeireki();
  void toWareki();
  void copyNow();
  void closeDictionaries();
  void finish();

 private:
  bool ask(const QString& question);
  void find(const QString& serial);
  void step(void (screen::DataSource::*move)());
  void store();
  frame::RunState& m_run;
  QString m_called;  ///< name of the patient whose chart was called for
  screen::OnceActive m_onceActive;
};

}  // namespace records

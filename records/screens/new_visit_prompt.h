#pragma once

#include "platform/screen/screen.h"

namespace records {

/// カルテ2の新規: asks whether a patient without visits gets a first one. はい lets the ledger add it. How it
/// is entered: routes::AskFirstVisit.
class NewVisitPrompt : public screen::Screen {
 public:
  explicit NewVisitPrompt(screen::Services& services);

  void opened(const screen::Request& request) override;
  QStringList openingTexts() const override;
  void makeVisit();
  void cancel();
};

}  // namespace records

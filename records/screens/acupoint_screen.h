#pragma once

#include "records/screens/dictionary.h"

namespace records {

/// frm経穴, the acupoint dictionary: 361 points, searched in any column. The list begins with two columns
/// that number and group the points, so that two presses of → reach their names.
class AcupointScreen final : public DictionaryScreen {
 public:
  AcupointScreen(screen::Services& services, frame::RunState& run);

  void onLoad() override;
  void add();
  /// To the next point that holds the text in the chosen column, round the end.
  void search();

 protected:
  QStringList onView() const override;
};

}  // namespace records

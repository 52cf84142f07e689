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
  /// Goes to the next point with the text in the chosen column, after the last from the first.
  void search();

 protected:
  QStringList rowInWords() const override;
};

}  // namespace records

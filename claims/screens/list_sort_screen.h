#pragma once

#include "platform/screen/screen.h"

namespace claims {

/// ソート3: asks by which column the claim list is put in order.
class ListSortScreen : public screen::Screen {
 public:
  explicit ListSortScreen(screen::Services& services);

  void onLoad() override;
  void ascending();
  void descending();
  void cancel();

 private:
  void sort(const QString& direction);
};

}  // namespace claims

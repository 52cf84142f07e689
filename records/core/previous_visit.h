#pragma once

#include <QString>
#include <array>
#include <functional>
#include <span>

#include "platform/store/column.h"

namespace records {

/// The previous-visit store: the values of the visit that was on view when 新規追加 was pressed, which is
/// whichever row was selected then and not the latest by date. The 前回同様 buttons of the ledger and of the
/// detail chart copy from it. Slots count from 1; the last two are never filled.
class PreviousVisit {
 public:
  static constexpr int kSlots = 40;
  enum Slot { Name = 1, Birth = 2, Summary = 3, Insurer = 4, Share = 5, Amount = 6, Patient = 7 };

  /// Blanks every slot.
  void clear() { m_values = {}; }
  /// Blanks every slot, then reads the visit: `valueOf` gives the value of a column.
  void take(const std::function<QString(const store::Column&)>& valueOf);
  /// A slot that was never filled is blank.
  QString value(int slot) const { return m_values.at(static_cast<size_t>(slot - 1)); }

  /// Name of the column of a slot; null for a slot that has none.
  static QString column(int slot);
  /// The slots that a new visit takes over at once: patient, classification of diseases, past history and
  /// chief complaint. All others wait for 前回同様.
  static std::span<const int> carriedAtOnce();

 private:
  std::array<QString, kSlots> m_values;
};

}  // namespace records

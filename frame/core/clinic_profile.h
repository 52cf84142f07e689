#pragma once

#include <QString>
#include <array>
#include <optional>
#include <span>

#include "frame/core/settings_slots.h"
#include "platform/store/column.h"

namespace frame {

/// A field of the clinic profile and the claim column that a new claim copies it into.
struct ProfileField {
  slot::Slot slot;
  std::optional<store::Column> claimColumn = {};
};

/// All fields of the profile.
std::span<const ProfileField> profileFields();

/// What the program knows of the practice itself, by slot.
class ClinicProfile {
 public:
  const QString& operator[](int slot) const { return m_values.at(static_cast<size_t>(slot)); }
  QString& operator[](int slot) { return m_values.at(static_cast<size_t>(slot)); }

 private:
  std::array<QString, slot::kCount> m_values;
};

}  // namespace frame

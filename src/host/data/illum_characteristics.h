// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <string_view>

#include "archive/nvp.h"

/// One illuminator of the device: its place and switching times on the illuminator page, and its
/// slot in the illumination configuration.
class IllumCharacteristics {
 public:
  static constexpr unsigned class_version = 1;

  enum IllumType : std::int32_t {
    kNoIllum = -1,
    kRed = 0,
    kGreen,
    kBlue,
    kYellow,
    kCyan,
    kMagenta,
    kWhite,
    kIR
  };
  static constexpr int kTypeCount = 8;

  static constexpr std::int16_t kNotShown = -1;
  static constexpr std::uint16_t kUsedSlot = 1;
  static constexpr std::uint16_t kFreeSlot = 0xFFFF;
  static constexpr std::int16_t kNoWheel = -1;

  /// The type of this name, such as "Red"; kNoIllum when there is none.
  [[nodiscard]] static IllumType GetIllumTypeForStr(std::string_view name) noexcept;
  /// The type's name; empty for a number that is no type.
  [[nodiscard]] static std::string_view GetStrForIllumType(std::int32_t type) noexcept;

  std::int16_t Row = kNotShown;  ///< row of the page that shows it, 0 to 7
  std::int32_t Type = kRed;      ///< an IllumType
  double EnableDelay = 0.0;      ///< microseconds, as the other times
  double DisableDelay = 0.0;
  double FallMargin = 0.0;

  std::uint16_t SlotMarker = kFreeSlot;
  std::int32_t BaseColor = kRed;        ///< an IllumType
  std::int32_t IsLed = 0;               ///< 1: an LED, 0: a laser
  std::int16_t WheelNumber = kNoWheel;  ///< of the wheel it shines through, from 1

  friend bool operator==(const IllumCharacteristics&, const IllumCharacteristics&) = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Row", Row);
    ar& zel::archive::nvp("Type", Type);
    ar& zel::archive::nvp("EnableDelay", EnableDelay);
    ar& zel::archive::nvp("DisableDelay", DisableDelay);
    ar& zel::archive::nvp("FallMargin", FallMargin);
    ar& zel::archive::nvp("SlotMarker", SlotMarker);
    ar& zel::archive::nvp("BaseColor", BaseColor);
    ar& zel::archive::nvp("IsLed", IsLed);
    ar& zel::archive::nvp("WheelNumber", WheelNumber);
  }
};

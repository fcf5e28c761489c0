// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <cstddef>

#include "archive/nvp.h"
#include "archive/serialize_array.h"
#include "host/data/illum_characteristics.h"

/// The switching times of every illuminator, and which ones the device may have.
class IlluminatorsPageData {
 public:
  static constexpr unsigned class_version = 1;
  static constexpr short kCount = IllumCharacteristics::kTypeCount;
  /// Red, green and blue are always there, each in the row of its own number.
  static constexpr int kFixedRows = 3;

  IlluminatorsPageData() {
    for (short i = 0; i < kCount; ++i) {
      IllumCharacteristics& illuminator = characteristics[static_cast<std::size_t>(i)];
      illuminator.Type = i;
      illuminator.Row = i < kFixedRows ? i : IllumCharacteristics::kNotShown;
    }
  }
  IlluminatorsPageData(const IlluminatorsPageData&) = default;
  IlluminatorsPageData& operator=(const IlluminatorsPageData&) = default;
  virtual ~IlluminatorsPageData() = default;

  std::array<IllumCharacteristics, kCount> characteristics;  ///< by illuminator type
  std::array<bool, kCount>
      allowed{};  ///< by type: whether it may be offered; only 3 to 7 are asked

  friend bool operator==(const IlluminatorsPageData&, const IlluminatorsPageData&) = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    zel::archive::SerializeArray<IllumCharacteristics, short, kCount> storedIllums(characteristics);
    zel::archive::SerializeArray<bool, short, kCount> storedAllowed(allowed);
    ar& zel::archive::nvp("IllumChars", storedIllums);
    ar& zel::archive::nvp("IllumAllowed", storedAllowed);
  }
};

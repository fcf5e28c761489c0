// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"

/// One chromaticity (CIE 1931).
struct xyChroma {
  static constexpr unsigned class_version = 1;

  double x = 0.0;
  double y = 0.0;

  [[nodiscard]] bool operator==(const xyChroma&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("xyChroma.x", x);
    ar& zel::archive::nvp("xyChroma.y", y);
  }
};

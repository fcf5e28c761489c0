// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <vector>

#include "archive/nvp.h"
#include "host/data/spectral_point.h"

/// One optics description of the device's optics library.
struct SOpticsRecord {
  std::vector<SpectralPoint> Response;
  std::string Name;  ///< UTF-8, at most 255 characters

  /// A record without a response is a free place of the library.
  [[nodiscard]] bool InUse() const noexcept { return !Response.empty(); }
  [[nodiscard]] bool operator==(const SOpticsRecord&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Response", Response);
    ar& zel::archive::nvp("Name", Name);
  }
};

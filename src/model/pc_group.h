// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "archive/nvp.h"
#include "model/vi_dark_pulse_info.h"

/// One sequence group type: a kind of sequence with the rates and spin factors it can run at.
class PCGroup {
 public:
  explicit PCGroup(std::string title = {}) : Title(std::move(title)) {}

  std::string Title;          ///< names the group wherever something is kept by group
  std::vector<double> Rates;  ///< Hz
  std::vector<double> SpinFactors;
  ::VIDarkPulseInfo VIDarkPulseInfo;
  std::vector<bool> BitwSelectRateFlags;  ///< one a rate: whether it is selected

  [[nodiscard]] bool operator==(const PCGroup&) const = default;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Title", Title);
    ar& zel::archive::nvp("Rates", Rates);
    ar& zel::archive::nvp("SpinFactors", SpinFactors);
    ar& zel::archive::nvp("VIDarkPulseInfo", VIDarkPulseInfo);
    ar& zel::archive::nvp("BitwSelectRateFlags", BitwSelectRateFlags);
  }
};

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

#include "archive/nvp.h"

/// Whether a compensation pulse is applied on one spoke; the stored form of an entry of
/// LampWaveform::SpokePulses.
struct SpokePulse {
  std::string Spoke;
  bool Applied = false;

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("Spoke", Spoke);
    ar& zel::archive::nvp("Applied", Applied);
  }
};

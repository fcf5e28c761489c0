// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "archive/nvp.h"

/// The timing of the pixel-shift actuator.
struct PixmeldControlData {
  double StartOfFirstSubframe = 0.0;   ///< degrees of color wheel rotation, 0 to 360
  double SubframeSignalLatency = 0.0;  ///< microseconds, 0 to 10000
  double ActuatorSwitchTime = 0.0;     ///< microseconds, 0 to 10000

  template <class Archive>
  void serialize(Archive& ar, unsigned /*version*/) {
    ar& zel::archive::nvp("StartOfFirstSubframe", StartOfFirstSubframe);
    ar& zel::archive::nvp("SubframeSignalLatency", SubframeSignalLatency);
    ar& zel::archive::nvp("ActuatorSwitchTime", ActuatorSwitchTime);
  }

  bool operator==(const PixmeldControlData&) const = default;
};

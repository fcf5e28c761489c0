// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

class OstProject;

/// What a page asks of the device that the project is for.
class Helper {
 public:
  struct Device {
    int kind = 0;       ///< the device's kind number; 0 when the project does not say
    int glowmatch = 0;  ///< 1 when the device matches the glow of its sources
  };

  explicit Helper(const OstProject& project) noexcept : project_(project) {}

  /// The project's keys `projectclass.device.kind` and `projectclass.device.glowmatch`.
  [[nodiscard]] Device GetDevice() const;

 private:
  const OstProject& project_;
};

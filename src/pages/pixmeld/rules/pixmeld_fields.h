// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <string>

#include "host/data/pixmeld_control_data.h"
#include "host/project/finding.h"

namespace pixmeld {

/// One of the actuator's values: how it is called, what it may be and where it is kept.
struct Field {
  const char* label;
  double PixmeldControlData::*member;
  const char* unit;
  double low;   ///< in the unit, included
  double high;  ///< included
  const char* toolTip;
  const char* ruleId;
};

[[nodiscard]] const std::array<Field, 3>& Fields();

/// The field's unit with its range, such as "degrees [0-360]".
[[nodiscard]] std::string UnitText(const Field& field);

/// An error for every value outside its range, or that is no number.
[[nodiscard]] Findings Check(const PixmeldControlData& data);

}  // namespace pixmeld

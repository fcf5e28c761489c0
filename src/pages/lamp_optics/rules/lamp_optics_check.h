// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "host/data/lamp_optics_data.h"
#include "host/project/finding.h"

namespace lamp_optics {

/// What the rules say of lamps and optics. Errors: values outside what the page takes, and current
/// records that are none. Warnings: names that cannot be told apart, responses that are not in
/// order, free places between records, and a model that passes nothing.
[[nodiscard]] Findings CheckLampOptics(const LampOpticsData& data);

}  // namespace lamp_optics

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "host/project/finding.h"
#include "model/lamp_aging_page_data.h"

class OstProject;

namespace lamp_aging {

/// What there is to say of the stored tables. Errors: what the page refuses, such as amplitudes
/// outside the limits and bins out of order. Warnings: what its buttons can lead to, such as
/// feedback values that no bin covers, and tables that it never uses.
[[nodiscard]] Findings Check(const LampAgingPageData& data, const OstProject& project);

}  // namespace lamp_aging

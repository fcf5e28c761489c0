// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "host/project/finding.h"
#include "model/frame_rates_page_data.h"

class OstProject;

namespace frame_rates {

/// What there is to say of a stored selection and table. Errors: selected ranges whose keys give no
/// bins, a selected rate that no range has, a table that is not the one its selection gives.
/// Warnings: what the rules allow and an engineer should know, such as source rates that no bin
/// serves or that two bins share.
[[nodiscard]] Findings Check(const SysDefFrameRatesPageData& data, const OstProject& project);

}  // namespace frame_rates

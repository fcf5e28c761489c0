// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>

#include "pages/frame_rates/rules/rate_table.h"

namespace frame_rates {

/// Which bin of the table serves a source rate and how that bin came to be, in words, a line for
/// each bin. Says so when none serves it, when two do, and when the rate cannot be counted.
[[nodiscard]] std::string Explain(const RateTable& table, double rateHz);

/// The same for a rate as it is typed; says so when the text is no number.
[[nodiscard]] std::string Explain(const RateTable& table, std::string_view typed);

}  // namespace frame_rates

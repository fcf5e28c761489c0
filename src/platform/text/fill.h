// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace platform {

/// The pattern with its conversions ("%d", "%.3f", "%5d") replaced, in order, by the values, which
/// come ready formatted: so a message or a key stands in the code as it is written down, and its
/// numbers never depend on the locale. There are as many values as conversions.
[[nodiscard]] std::string Fill(std::string_view pattern, std::initializer_list<std::string> values);

}  // namespace platform

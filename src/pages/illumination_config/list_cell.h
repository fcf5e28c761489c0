// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace illumination_config {

/// The text that makes a list cell: the choices, each with its separator behind it, then the one
/// that is chosen. For no choice at all the first one stands there, for the caller to replace.
[[nodiscard]] QString ListCell(std::string_view choices, const std::string& chosen);

}  // namespace illumination_config

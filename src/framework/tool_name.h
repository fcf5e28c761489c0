// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace VeskSystemDefinition {

/// The name under which the host and every page know the tool.
inline constexpr const char* kToolName = "VeskSysDefTool";

}  // namespace VeskSystemDefinition

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

class OstProject;

namespace CWSupport {

/// The letters (color_code) of the colors that the project's wheels may use: the project's key
/// `projectclass.colorwheel.supportedcolors`, or the given letters when the project has no such
/// key. The last argument numbers the wheel; all wheels of a project of this host use one key.
[[nodiscard]] std::string GetSupportedCWs(const OstProject& project, const std::string& otherwise,
                                          int /*wheel*/);

}  // namespace CWSupport

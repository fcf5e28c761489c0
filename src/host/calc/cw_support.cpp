// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/cw_support.h"

#include "host/project/ost_project.h"

namespace CWSupport {

std::string GetSupportedCWs(const OstProject& project, const std::string& otherwise, int) {
  return project.GetText("projectclass.colorwheel.supportedcolors", otherwise);
}

}  // namespace CWSupport

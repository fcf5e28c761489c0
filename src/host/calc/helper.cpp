// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/helper.h"

#include "host/project/ost_project.h"

Helper::Device Helper::GetDevice() const {
  return {project_.GetInteger("projectclass.device.kind", 0),
          project_.GetInteger("projectclass.device.glowmatch", 0)};
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/helper.h"

#include <gtest/gtest.h>

#include "host/calc/cw_support.h"
#include "host/project/ost_project.h"

namespace {

TEST(ProjectQueries, DeviceAndWheelColorsComeFromTheProjectsKeys) {
  OstProject project;
  EXPECT_EQ(Helper(project).GetDevice().kind, 0);
  EXPECT_EQ(CWSupport::GetSupportedCWs(project, "RGBYCMW", 1), "RGBYCMW");
  project.SetKey("projectclass.device.kind", "19");
  project.SetKey("projectclass.device.glowmatch", "1");
  project.SetKey("projectclass.colorwheel.supportedcolors", "RGBw");
  EXPECT_EQ(Helper(project).GetDevice().kind, 19);
  EXPECT_EQ(Helper(project).GetDevice().glowmatch, 1);
  EXPECT_EQ(CWSupport::GetSupportedCWs(project, "RGBYCMW", 1), "RGBw");
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/extension_library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/project/ost_exception.h"
#include "support/fault_of.h"
#include "support/temp_folder.h"

namespace {

TEST(ExtensionLibrary, AFaultNamesTheFileAndTheReason) {
  const test::TempFolder folder;
  const std::string text = folder.Write("text.so", "no library").string();
  const std::string plugins = SYSDEF_BINARY_DIR "/tests/plugins/";
  const std::pair<std::string, const char*> faults[] = {
      {folder.Path() / "none.so", "missing"},
      {text, "text.so"},
      {plugins + "no_extension.so", "not an extension"},
      {plugins + "other_interface.so", "interface 99"},
      {plugins + "refuses.so", "refused to attach"}};
  for (const auto& [file, reason] : faults) {
    EXPECT_THAT(test::FaultOf<OstException>(
                    [&, path = file] { const Framework::ExtensionLibrary library(path); }),
                testing::AllOf(testing::StartsWith(file + ": "), testing::HasSubstr(reason)));
  }
}

}  // namespace

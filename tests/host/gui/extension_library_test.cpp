// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/extension_library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/project/ost_exception.h"
#include "support/temp_folder.h"

namespace {

struct Fault {
  const char* name;
  const char* file;
  const char* text;
};

class ExtensionFaults : public testing::TestWithParam<Fault> {};

TEST_P(ExtensionFaults, NameTheFileAndTheReason) {
  const test::TempFolder folder;
  folder.Write("text.so", "no library");
  const std::string file = GetParam().file[0] == '+'
                               ? (folder.Path() / (GetParam().file + 1)).string()
                               : std::string(SYSDEF_BINARY_DIR "/tests/plugins/") + GetParam().file;
  try {
    const Framework::ExtensionLibrary library(file);
    ADD_FAILURE() << "attached";
  } catch (const OstException& error) {
    EXPECT_THAT(error.what(), testing::StartsWith(file + ": "));
    EXPECT_THAT(error.what(), testing::HasSubstr(GetParam().text));
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, ExtensionFaults,
    testing::Values(Fault{"Missing", "+none.so", "missing"},
                    Fault{"NoLibrary", "+text.so", "text.so"},
                    Fault{"NoExtension", "no_extension.so", "not an extension"},
                    Fault{"OtherInterface", "other_interface.so", "interface 99"},
                    Fault{"RefusesToAttach", "refuses.so", "refused to attach"}),
    [](const auto& each) { return each.param.name; });

}  // namespace

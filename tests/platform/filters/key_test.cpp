// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/filters/key.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "platform/file/file_error.h"
#include "platform/filters/filter_error.h"
#include "support/fault_of.h"
#include "support/temp_folder.h"

namespace {

using platform::FileError;
using platform::filters::FilterError;
using platform::filters::Key;

TEST(Key, TextIsSixtyFourDigits) {
  const std::string digits = "0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef";
  EXPECT_EQ(Key::FromText(digits).Text(), digits);
  EXPECT_EQ(Key::FromText(" \n" + digits + "\r\n").Text(), digits);
  EXPECT_EQ(Key::FromText(std::string(64, 'F')).Text(), std::string(64, 'f'));
  for (const std::string& bad :
       {std::string(), digits.substr(1), digits + "0", digits + "00", "g" + digits.substr(1),
        digits.substr(0, 32) + " " + digits.substr(32), digits + " x"})
    EXPECT_THROW(Key::FromText(bad), FilterError) << bad;
  EXPECT_NE(Key::Generate().Text(), Key::Generate().Text());
}

TEST(Key, FileIsTheOwnersAndNeverReplaced) {
  const test::TempFolder folder;
  const auto file = folder.Path() / "suite.key";
  const Key key = Key::Generate();
  key.WriteNewFile(file);
  EXPECT_EQ(Key::FromFile(file).Text(), key.Text());
  struct stat status = {};
  ASSERT_EQ(::stat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0600u);
  EXPECT_THROW(Key::Generate().WriteNewFile(file), FileError);
  EXPECT_EQ(Key::FromFile(file).Text(), key.Text());
}

TEST(Key, FilesWithoutAKeyAreNamed) {
  const test::TempFolder folder;
  const auto file = folder.Write("other", "not a key");
  EXPECT_EQ(test::FaultOf<FilterError>([&] { Key::FromFile(file); }),
            file.string() + ": a key is 64 hexadecimal digits");
  EXPECT_THROW(Key::FromFile(folder.Path() / "none"), FileError);
  EXPECT_THROW(Key::FromFile(folder.Write("long", std::string(5000, ' '))), FileError);
}

}  // namespace

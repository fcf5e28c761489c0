// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/command.h"
#include "support/one_line.h"

namespace {

using test::Command;
using test::CommandResult;
using test::IsOneLineWith;
using Words = std::vector<std::string>;

const std::string kSheet = "support/pixmeld_in.xsl";

class Containers : public testing::Test {
 protected:
  Containers() {
    EXPECT_EQ(command_.Run({"key", "a.key"}).status, 0);
    EXPECT_EQ(command_.Run({"key", "b.key"}).status, 0);
    plain_ = command_.ReadSupport("pixmeld_in.xsl");
    command_.Write("plain.xsl", plain_);
  }
  void Pack(const Words& options, const std::string& file = "plain.xsl") {
    command_.Write(kSheet, "");
    Words all{"pack", file, kSheet};
    all.insert(all.end(), options.begin(), options.end());
    const CommandResult packed = command_.Run(all);
    ASSERT_EQ(packed, (CommandResult{0, "", ""}));
    ASSERT_NE(command_.Read(kSheet), plain_);
  }
  CommandResult Show() { return command_.Run({"show", Command::kProject, "PixmeldPage"}); }
  void NameKey(const std::string& file) {
    command_.Write(Command::kProject, "<OstProject><Key name='projectclass.support.keyfile'>" +
                                          file + "</Key></OstProject>");
  }

  Command command_;
  std::string plain_;
};

TEST_F(Containers, PackedStylesheetsServeAndUnpackToTheirBytes) {
  const CommandResult before = Show();
  ASSERT_EQ(before.status, 0);
  NameKey("a.key");
  for (const Words& options :
       {Words{}, Words{"--key", "a.key"}, Words{"--key", "a.key", "--no-compress"}}) {
    Pack(options);
    EXPECT_EQ(Show(), before) << testing::PrintToString(options);
    Words unpack{"unpack", kSheet, "again.xsl", "--key", "a.key"};
    EXPECT_EQ(command_.Run(unpack), (CommandResult{0, "", ""}));
    EXPECT_EQ(command_.Read("again.xsl"), plain_);
    unpack.erase(unpack.begin() + 2);
    EXPECT_EQ(command_.Run(unpack), (CommandResult{0, plain_, ""}));
  }
}

// A page whose stylesheet cannot be had is not opened with its defaults.
TEST_F(Containers, WhatCannotBeOpenedIsNamedAndOpensNoPage) {
  const auto expectRefused = [this](const Words& named) {
    const CommandResult result = Show();
    EXPECT_EQ(result.status, 3) << result;
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, IsOneLineWith(named));
    command_.Write("out", "old");
    const CommandResult unpacked = command_.Run({"unpack", kSheet, "out", "--key", "b.key"});
    EXPECT_EQ(unpacked.status, 3) << unpacked;
    EXPECT_THAT(unpacked.err, IsOneLineWith(Words{kSheet}));
    EXPECT_EQ(command_.Read("out"), "old");
  };
  Pack({"--key", "a.key"});
  expectRefused({kSheet, "SYSDEF_KEY_FILE"});
  NameKey("gone.key");
  expectRefused({kSheet, "gone.key"});
  NameKey("plain.xsl");
  expectRefused({kSheet, "plain.xsl", "64 hexadecimal digits"});
  NameKey("b.key");
  expectRefused({kSheet, "key"});
  NameKey("a.key");
  const std::string packed = command_.Read(kSheet);
  command_.Write(kSheet, packed.substr(0, packed.size() - 7));
  expectRefused({kSheet});
  std::string damaged = packed;
  damaged[damaged.size() / 2] ^= 1;
  command_.Write(kSheet, damaged);
  expectRefused({kSheet});
}

TEST_F(Containers, ABombStopsAtItsLimit) {
  command_.Write("bomb", plain_ + std::string(65u << 20, ' '));
  Pack({}, "bomb");
  const CommandResult shown = Show();
  EXPECT_EQ(shown.status, 3);
  EXPECT_THAT(shown.err, IsOneLineWith(Words{kSheet, "more than is allowed"}));
}

TEST_F(Containers, WrongUseAndFilesThatAreNotThere) {
  for (const Words& wrong : {Words{"pack", "plain.xsl"}, Words{"pack"}, Words{"unpack"},
                             Words{"key"}, Words{"pack", "plain.xsl", "out", "--no-compress"}}) {
    const CommandResult result = command_.Run(wrong);
    EXPECT_EQ(result.status, 2) << result;
    EXPECT_THAT(result.err, IsOneLineWith(Words{}));
  }
  const std::string key = command_.Read("a.key");
  for (const Words& failing : {Words{"pack", "gone", "out"}, Words{"pack", ".", "out"},
                               Words{"unpack", "plain.xsl", "out"}, Words{"key", "a.key"},
                               Words{"pack", "plain.xsl", "out", "--key", "gone"}}) {
    const CommandResult result = command_.Run(failing);
    EXPECT_EQ(result.status, 3) << result;
    EXPECT_THAT(result.err, IsOneLineWith(Words{}));
  }
  EXPECT_EQ(command_.Read("a.key"), key);
  EXPECT_FALSE(command_.Exists("out"));
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/xml/attack.h"
#include "support/command.h"
#include "support/one_line.h"

namespace {

using test::Command;
using test::IsOneLineWith;
using test::Numbered;
using test::Repeat;
using Words = std::vector<std::string>;

struct Bomb {
  const char* name;
  std::string text;
  Words named;
};

std::string Entities() {
  std::string text = "<!DOCTYPE RunTimeDB [<!ENTITY e0 'aaaaaaaaaa'>";
  for (int i = 1; i < 10; ++i) {
    const std::string before = "&e" + std::to_string(i - 1) + ";";
    text += "<!ENTITY e" + std::to_string(i) + " '" + Repeat(before, 10) + "'>";
  }
  return text + "]>\n<RunTimeDB>&e9;</RunTimeDB>";
}

std::vector<Bomb> Bombs() {
  const auto attribute = [](int i) { return " a" + std::to_string(i) + "=''"; };
  return {
      {"entities", Entities(), {"document type"}},
      {"external entity",
       "<!DOCTYPE RunTimeDB [<!ENTITY e SYSTEM 'file:///etc/passwd'>]><RunTimeDB>&e;</RunTimeDB>",
       {"document type"}},
      {"external document type",
       "<!DOCTYPE RunTimeDB SYSTEM '/dev/zero'><RunTimeDB/>",
       {"document type"}},
      {"depth", "<RunTimeDB>" + Repeat("<a>", 1'000'000), {"nested deeper than 256"}},
      {"elements", "<RunTimeDB>" + Repeat("<a/>", 6'000'000) + "</RunTimeDB>", {"more elements"}},
      {"attributes",
       "<RunTimeDB><a" + Numbered(60'000, attribute) + "/></RunTimeDB>",
       {"more attributes"}},
      {"bytes just past the limit",
       "<RunTimeDB>" + std::string(128u << 20, ' ') + "</RunTimeDB>",
       {"longer than"}},
      {"bytes within the limit in a comment",
       "<RunTimeDB><!--" + std::string(120u << 20, ' ') + "--></RunTimeDB>",
       {"longer than"}},
  };
}

// One line and the exit status, within 2 seconds of processor time and 200 MiB: what takes more
// ends without them.
TEST(Bombs, InTheDatabaseEndAtOnceInLittleMemory) {
  Command command;
#ifndef __SANITIZE_ADDRESS__  // whose shadow is larger by itself
  command.LimitMemory(200u << 20);
#endif
  command.LimitProcessorTime(2);
  for (const Bomb& bomb : Bombs()) {
    command.Write(Command::kDatabase, bomb.text);
    const auto result = command.Run({"show", Command::kProject});
    EXPECT_EQ(result.status, 3) << bomb.name << result;
    EXPECT_EQ(result.out, "") << bomb.name;
    Words named = bomb.named;
    named.emplace_back(Command::kDatabase);
    EXPECT_THAT(result.err, IsOneLineWith(named)) << bomb.name;
  }
}

}  // namespace

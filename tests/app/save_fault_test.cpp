// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QThread>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "support/command.h"
#include "support/one_line.h"

namespace {

using test::Command;
using test::CommandResult;
using testing::AnyOf;
using testing::HasSubstr;

bool IsLong() { return std::getenv("SYSDEF_LONG_FAULTS") != nullptr; }

// Types another angle into the pixel-shift page and saves, once or for ever.
constexpr const char* kScript = R"js(
  const page = sysdef.open("PixmeldPage");
  for (let i = 100; ; ++i) {
    page.control("Start of 1st Subframe").text = String(i % 360);
    const saved = page.apply() && sysdef.save();
    if (args[0] == "loop" && saved) continue;
    print(saved ? "saved" : "not saved\n" + sysdef.messages().map(m => m.text).join("\n"));
    break;
  })js";

/// A way that a value takes to the disk: a script's, or the window's.
struct Way {
  const char* name;
  const char* program;
  std::vector<std::string> arguments;
};
std::ostream& operator<<(std::ostream& stream, const Way& way) { return stream << way.name; }

class SaveFault : public testing::TestWithParam<Way> {
 protected:
  SaveFault() {
    command_.SetProgram(SYSDEF_BINARY_DIR + std::string(GetParam().program));
    command_.Write("save.js", kScript);
  }
  [[nodiscard]] static std::vector<std::string> Arguments(const char* mode) {
    auto arguments = GetParam().arguments;
    arguments.emplace_back(mode);
    return arguments;
  }
  CommandResult SaveOnce() { return command_.Run(Arguments("once")); }
  /// The next runs find this fault on the disk; none: a whole one.
  void LetDiskFail(const std::string& fault) {
    command_.SetEnvironment("LD_PRELOAD", SYSDEF_BINARY_DIR "/tests/plugins/disk_faults.so");
    command_.SetEnvironment("SYSDEF_FAULT_FOLDER", command_.Folder());
    command_.SetEnvironment("SYSDEF_FAULT", fault);
  }
  /// What must hold after a save that may have failed: the old database, and the failure said, or
  /// the new one whole.
  void ExpectOldOrNew(const CommandResult& result) {
    const std::string now = command_.Read(Command::kDatabase);
    if (result.out == "saved\n") {
      EXPECT_EQ(now, New());
      return;
    }
    EXPECT_THAT(result.out + result.err,
                AnyOf(HasSubstr("runtimedb.xml"), HasSubstr("cannot be locked")))
        << result;
    EXPECT_EQ(now, old_);
  }
  [[nodiscard]] std::string New() const {
    const std::string before = "<StartOfFirstSubframe degrees=\"";
    std::string text = old_;
    return text.replace(text.find(before) + before.size(), 3, "100");
  }

  Command command_;
  const std::string old_ = command_.Read(Command::kDatabase);
};

/// The database with the number that it holds taken out, so that the rest can be compared.
std::string WithoutStart(std::string text) {
  const std::string before = "<StartOfFirstSubframe degrees=\"";
  const std::size_t begin = text.find(before) + before.size();
  return text.erase(begin, text.find('"', begin) - begin);
}

// A program that does nothing but save is killed at a moment of chance, again and again.
TEST_P(SaveFault, KillingASaveLeavesAWholeDatabase) {
  const int kills = IsLong() ? 200 : 10;
  const std::string filler(1 << 20, 'x');
  command_.Replace(Command::kDatabase, "</RunTimeDB>", "<Other>" + filler + "</Other></RunTimeDB>");
  const std::string rest = WithoutStart(command_.Read(Command::kDatabase));
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  std::uniform_int_distribution<unsigned long> moment(0, 100'000);

  int saved = 0;
  for (int kill = 0; kill < kills; ++kill) {
    const std::string before = command_.Read(Command::kDatabase);
    QProcess program;
    command_.Start(program, Arguments("loop"));
    // The first save tells that the loop is reached; from there on it never does anything else.
    QElapsedTimer patience;
    patience.start();
    while (command_.Read(Command::kDatabase) == before && patience.elapsed() < 20'000)
      QThread::msleep(2);
    QThread::usleep(moment(random));
    ASSERT_EQ(program.state(), QProcess::Running) << program.readAllStandardError().toStdString();
    program.kill();
    program.waitForFinished();
    const std::string after = command_.Read(Command::kDatabase);
    saved += after != before;
    ASSERT_EQ(WithoutStart(after), rest);
  }
  EXPECT_GE(saved, kills / 2) << "the loop was hardly ever reached";
}

TEST_P(SaveFault, AFileSizeLimitLeavesTheOldDatabase) {
  for (const unsigned most : {0u, 64u, 4096u}) {
    command_.LimitFileSize(most);
    const CommandResult result = SaveOnce();
    ExpectOldOrNew(result);
    EXPECT_THAT(result.out, HasSubstr("not saved")) << most;
  }
}

#ifndef __SANITIZE_ADDRESS__  // whose runtime must be the first that is loaded
// The disk is full after so many bytes, from the first of the lock or the copy kept aside to the
// last of the new database.
TEST_P(SaveFault, AFullDiskLeavesTheOldOrTheNewDatabase) {
  const std::size_t step = old_.size() / (IsLong() ? 100 : 4);
  int failed = 0;
  for (std::size_t room = 0; room < 2 * old_.size() + 200; room += step) {
    command_.Write(Command::kDatabase, old_);
    command_.Remove("runtimedb.xml.bak");
    LetDiskFail("write:" + std::to_string(room));
    const CommandResult result = SaveOnce();
    ExpectOldOrNew(result);
    failed += result.out != "saved\n";
    ASSERT_FALSE(HasFailure()) << room << result;
  }
  EXPECT_GT(failed, 3);
}

TEST_P(SaveFault, AFolderThatTakesNothingKeepsTheOldDatabase) {
  for (const char* fault : {"create", "sync", "rename"}) {
    LetDiskFail(fault);
    const CommandResult result = SaveOnce();
    ExpectOldOrNew(result);
    EXPECT_NE(result.out, "saved\n") << fault;
  }
  LetDiskFail("");
  EXPECT_EQ(SaveOnce().out, "saved\n");
  EXPECT_EQ(command_.Read(Command::kDatabase), New());
}
#endif

TEST_P(SaveFault, ACutDatabaseIsRefusedAndKept) {
  const std::size_t step = IsLong() ? 64 : old_.size() / 10;
  for (std::size_t length = 0; length < old_.size() - 10; length += step) {
    const std::string cut = old_.substr(0, length);
    command_.Write(Command::kDatabase, cut);
    const CommandResult result = SaveOnce();
    EXPECT_EQ(result.status, 3) << length << result;
    EXPECT_THAT(result.err, test::IsOneLineWith(std::vector<std::string>{"runtimedb.xml"}));
    EXPECT_EQ(command_.Read(Command::kDatabase), cut);
    EXPECT_FALSE(command_.Exists("runtimedb.xml.bak"));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Ways, SaveFault,
    testing::Values(Way{"script", "/bin/sysdef", {"script", Command::kProject, "save.js"}},
                    Way{"window", "/tests/programs/window_saver", {Command::kProject}}),
    testing::PrintToStringParamName());

}  // namespace

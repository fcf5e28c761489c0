// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QThread>
#include <cstdlib>
#include <random>
#include <string>

#include "support/command.h"

namespace {

using test::Command;

/// The database with the number that it holds taken out, so that the rest can be compared.
std::string WithoutStart(std::string text) {
  const std::string before = "<StartOfFirstSubframe degrees=\"";
  const std::size_t begin = text.find(before) + before.size();
  return text.erase(begin, text.find('"', begin) - begin);
}

int Kills() { return std::getenv("SYSDEF_LONG_FAULTS") ? 200 : 20; }

// A program that does nothing but save is killed at a moment of chance, again and again.
TEST(SaveFault, KillingASaveLeavesAWholeDatabase) {
  Command command;
  const std::string filler(1 << 20, 'x');
  command.Replace(Command::kDatabase, "</RunTimeDB>", "<Other>" + filler + "</Other></RunTimeDB>");
  const std::string rest = WithoutStart(command.Read(Command::kDatabase));
  command.Write("save.js", R"js(
    const page = sysdef.open("PixmeldPage");
    for (let i = 0; ; ++i) {
      page.control("Start of 1st Subframe").text = String(i % 360);
      if (!page.apply() || !sysdef.save()) throw new Error("not saved");
    })js");
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  std::uniform_int_distribution<unsigned long> moment(0, 100'000);

  int saved = 0;
  for (int kill = 0; kill < Kills(); ++kill) {
    const std::string before = command.Read(Command::kDatabase);
    QProcess program;
    command.Start(program, {"script", Command::kProject, "save.js"});
    // The first save tells that the loop is reached; from there on it never does anything else.
    QElapsedTimer patience;
    patience.start();
    while (command.Read(Command::kDatabase) == before && patience.elapsed() < 20'000)
      QThread::msleep(2);
    QThread::usleep(moment(random));
    ASSERT_EQ(program.state(), QProcess::Running) << program.readAllStandardError().toStdString();
    program.kill();
    program.waitForFinished();
    const std::string after = command.Read(Command::kDatabase);
    saved += after != before;
    ASSERT_EQ(WithoutStart(after), rest);
  }
  EXPECT_GE(saved, Kills() / 2) << "the loop was hardly ever reached";
}

}  // namespace

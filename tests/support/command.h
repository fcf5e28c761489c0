// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <sys/resource.h>

#include <QProcess>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace test {

/// What a run of the program left.
struct CommandResult {
  int status;       ///< the exit status; -1 when the program crashed or did not end
  std::string out;  ///< all of standard output
  std::string err;  ///< all of standard error

  bool operator==(const CommandResult&) const = default;
};
std::ostream& operator<<(std::ostream& stream, const CommandResult& result);

/// A temporary folder that holds a copy of the sample project, and runs of the built program in
/// it. The program sees no settings, no display and no language of the person who runs the tests.
class Command {
 public:
  Command();

  /// Runs `sysdef ARGUMENTS...` in the folder, with `input` as its standard input.
  CommandResult Run(const std::vector<std::string>& arguments, const std::string& input = {});
  /// Starts it and comes back at once.
  void Start(QProcess& program, const std::vector<std::string>& arguments);
  /// Every run from now on is of this program in place of sysdef, and with this in its environment.
  void SetProgram(const std::string& path) { program_ = path; }
  void SetEnvironment(const std::string& name, const std::string& value) {
    environment_[name] = value;
  }
  /// No run from now on may write a file longer than this, as if the disk were full.
  void LimitFileSize(unsigned bytes) { limits_[RLIMIT_FSIZE] = bytes; }
  /// No run from now on may take more memory of its own, or more processor time: it crashes then.
  void LimitMemory(unsigned bytes) { limits_[RLIMIT_DATA] = bytes; }
  void LimitProcessorTime(unsigned seconds) { limits_[RLIMIT_CPU] = seconds; }

  [[nodiscard]] std::string Folder() const { return folder_.Path().string(); }
  /// Files of the folder, by path relative to it. Writing makes the folders that are missing.
  void Write(const std::string& file, const std::string& text) { folder_.Write(file, text); }
  [[nodiscard]] std::string Read(const std::string& file) const { return folder_.Read(file); }
  /// A support file as the program is installed with it.
  [[nodiscard]] static std::string ReadSupport(const std::string& file);
  [[nodiscard]] bool Exists(const std::string& file) const;
  void Remove(const std::string& file);
  /// Replaces the only place of a file where `before` stands.
  void Replace(const std::string& file, const std::string& before, const std::string& after);
  /// All files of the project but those the program keeps for the person, by relative path.
  [[nodiscard]] std::map<std::string, std::string> Everything() const;

  static constexpr const char* kProject = "three-color-lamp.ostproj";
  static constexpr const char* kDatabase = "runtimedb.xml";

 private:
  TempFolder folder_;
  std::string program_;
  std::map<std::string, std::string> environment_;
  std::map<int, unsigned> limits_;
};

}  // namespace test

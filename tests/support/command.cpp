// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "support/command.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kHome = ".home";
constexpr int kPatience = 60'000;  // milliseconds; a run takes some hundred

QProcessEnvironment PlainEnvironment(const fs::path& home) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "LANGUAGE", "LANG",
                           "SYSDEF_DATA", "QT_LOGGING_RULES"})
    environment.remove(name);
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  environment.insert("LC_ALL", "C.UTF-8");
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
    environment.insert(name, QString::fromStdString(home.string()));
  return environment;
}

void LimitSelf(const std::map<int, unsigned>& limits) {
  // Without the signal the write itself fails, which is how a full disk looks.
  std::signal(SIGXFSZ, SIG_IGN);
  for (const auto& [resource, most] : limits) {
    const rlimit limit{most, most};
    setrlimit(static_cast<__rlimit_resource>(resource), &limit);
  }
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const CommandResult& result) {
  return stream << "exit status " << result.status << "\n--- standard output\n"
                << result.out << "--- standard error\n"
                << result.err << "---";
}

Command::Command() : program_(SYSDEF_BINARY_DIR "/bin/sysdef") {
  fs::copy(fs::path(SYSDEF_SOURCE_DIR) / "samples/three-color-lamp", folder_.Path(),
           fs::copy_options::recursive);
  fs::create_directory(folder_.Path() / kHome);
}

void Command::Start(QProcess& program, const std::vector<std::string>& arguments) {
  QStringList list;
  for (const std::string& argument : arguments) list << QString::fromStdString(argument);
  program.setWorkingDirectory(QString::fromStdString(folder_.Path().string()));
  QProcessEnvironment environment = PlainEnvironment(folder_.Path() / kHome);
  for (const auto& [name, value] : environment_)
    environment.insert(QString::fromStdString(name), QString::fromStdString(value));
  program.setProcessEnvironment(environment);
  if (!limits_.empty()) program.setChildProcessModifier([this] { LimitSelf(limits_); });
  program.start(QString::fromStdString(program_), list);
  program.waitForStarted();
}

CommandResult Command::Run(const std::vector<std::string>& arguments, const std::string& input) {
  QProcess program;
  Start(program, arguments);
  program.write(input.data(), static_cast<qint64>(input.size()));
  program.closeWriteChannel();
  const bool ended = program.waitForFinished(kPatience);
  if (!ended) program.kill();
  program.waitForFinished();
  const bool whole = ended && program.exitStatus() == QProcess::NormalExit;
  return {whole ? program.exitCode() : -1, program.readAllStandardOutput().toStdString(),
          program.readAllStandardError().toStdString()};
}

std::string Command::ReadSupport(const std::string& file) {
  std::ifstream in(fs::path(SYSDEF_BINARY_DIR) / "share/sysdef/support" / file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

bool Command::Exists(const std::string& file) const { return fs::exists(folder_.Path() / file); }

void Command::Remove(const std::string& file) { fs::remove_all(folder_.Path() / file); }

void Command::Replace(const std::string& file, const std::string& before,
                      const std::string& after) {
  std::string text = Read(file);
  const std::size_t place = text.find(before);
  if (place == std::string::npos || text.find(before, place + 1) != std::string::npos)
    throw std::runtime_error(before + " does not stand once in " + file);
  Write(file, text.replace(place, before.size(), after));
}

std::map<std::string, std::string> Command::Everything() const {
  std::map<std::string, std::string> files;
  const fs::path& root = folder_.Path();
  for (auto entry = fs::recursive_directory_iterator(root);
       entry != fs::recursive_directory_iterator(); ++entry) {
    if (entry->path().filename() == kHome) entry.disable_recursion_pending();
    if (!entry->is_regular_file()) continue;
    const std::string name = fs::relative(entry->path(), root).string();
    files[name] = Read(name);
  }
  return files;
}

}  // namespace test

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "support/command.h"

#include <sys/resource.h>

#include <QDir>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tests {
namespace {

namespace fs = std::filesystem;

constexpr const char* kHome = ".home";
constexpr int kPatience = 60'000;  // milliseconds; a run takes some hundred

QProcessEnvironment PlainEnvironment(const QString& home) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "LANGUAGE", "LANG",
                           "SYSDEF_DATA", "QT_LOGGING_RULES"})
    environment.remove(name);
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  environment.insert("LC_ALL", "C.UTF-8");
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
    environment.insert(name, home);
  return environment;
}

void LimitOwnFileSize(unsigned bytes) {
  // Without the signal the write itself fails, which is how a full disk looks.
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{bytes, bytes};
  setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const CommandResult& result) {
  return stream << "exit status " << result.status << "\n--- standard output\n"
                << result.out << "--- standard error\n"
                << result.err << "---";
}

Command::Command() {
  if (!folder_.isValid()) throw std::runtime_error("no temporary folder");
  fs::copy(fs::path(SYSDEF_SOURCE_DIR) / "samples/three-color-lamp", folder_.path().toStdString(),
           fs::copy_options::recursive);
  fs::create_directory(Path(kHome));
}

void Command::Start(QProcess& program, const std::vector<std::string>& arguments) {
  QStringList list;
  for (const std::string& argument : arguments) list << QString::fromStdString(argument);
  program.setWorkingDirectory(folder_.path());
  program.setProcessEnvironment(PlainEnvironment(folder_.filePath(kHome)));
  if (fileSize_) program.setChildProcessModifier([bytes = *fileSize_] { LimitOwnFileSize(bytes); });
  program.start(SYSDEF_BINARY_DIR "/bin/sysdef", list);
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

void Command::Write(const std::string& file, const std::string& text) {
  fs::create_directories(fs::path(Path(file)).parent_path());
  std::ofstream stream(Path(file), std::ios::binary);
  stream << text;
  if (!stream.flush()) throw std::runtime_error("cannot write " + file);
}

std::string Command::Read(const std::string& file) const {
  std::ifstream stream(Path(file), std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read " + file);
  return (std::ostringstream() << stream.rdbuf()).str();
}

bool Command::Exists(const std::string& file) const { return fs::exists(Path(file)); }

void Command::Remove(const std::string& file) { fs::remove_all(Path(file)); }

void Command::Replace(const std::string& file, const std::string& before,
                      const std::string& after) {
  std::string text = Read(file);
  const std::size_t place = text.find(before);
  if (place == std::string::npos || text.find(before, place + 1) != std::string::npos)
    throw std::runtime_error(before + " does not stand once in " + file);
  Write(file, text.replace(place, before.size(), after));
}

std::vector<std::string> Command::Files() const {
  std::vector<std::string> names;
  for (const auto& entry : QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name))
    names.push_back(entry.toStdString());
  return names;
}

std::map<std::string, std::string> Command::Everything() const {
  std::map<std::string, std::string> files;
  const fs::path root(Path("."));
  for (auto entry = fs::recursive_directory_iterator(root);
       entry != fs::recursive_directory_iterator(); ++entry) {
    if (entry->path().filename() == kHome) entry.disable_recursion_pending();
    if (!entry->is_regular_file()) continue;
    const std::string name = fs::relative(entry->path(), root).string();
    files[name] = Read(name);
  }
  return files;
}

std::string Command::Path(const std::string& file) const {
  return folder_.filePath(QString::fromStdString(file)).toStdString();
}

}  // namespace tests

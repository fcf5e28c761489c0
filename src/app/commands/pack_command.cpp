// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/commands/pack_command.h"

#include <fstream>
#include <iostream>
#include <optional>
#include <streambuf>

#include "app/command_line.h"
#include "app/exit_status.h"
#include "app/wrong_use.h"
#include "platform/file/file.h"
#include "platform/file/file_error.h"
#include "platform/file/replacement.h"
#include "platform/filters/container.h"
#include "platform/filters/filter_error.h"

namespace app {

namespace {

namespace filters = platform::filters;
using platform::FileError;

std::ifstream Open(const std::string& path) {
  std::ifstream file = platform::OpenFile(path);
  if (!file.is_open()) throw FileError("Cannot read " + path);
  return file;
}

/// Passes what a stream writes on to a file that is made.
class ReplacementStreambuf : public std::streambuf {
 public:
  explicit ReplacementStreambuf(platform::Replacement& file) : file_(file) {}

 protected:
  std::streamsize xsputn(const char* bytes, std::streamsize size) override {
    file_.Write({bytes, static_cast<std::size_t>(size)});
    return size;
  }
  int_type overflow(int_type byte) override {
    const char one = traits_type::to_char_type(byte);
    return xsputn(&one, 1) == 1 ? byte : traits_type::eof();
  }

 private:
  platform::Replacement& file_;
};

/// Runs `make` on a stream into the file, which appears when it came to its end.
template <class Make>
void MakeFile(const std::string& path, Make make) {
  platform::Replacement file(path);
  ReplacementStreambuf buffer(file);
  std::ostream to(&buffer);
  // A stream would else keep the reason to itself.
  to.exceptions(std::ios::badbit);
  make(to);
  file.Commit();
}

std::optional<filters::Key> KeyOf(const CommandLine& line) {
  if (line.keyFile.empty()) return std::nullopt;
  return filters::Key::FromFile(line.keyFile);
}

/// Runs `act`; what it says of the container is said of the file.
template <class Act>
void Naming(const std::string& file, Act act) {
  try {
    act();
  } catch (const filters::FilterError& error) {
    throw filters::FilterError(file + ": " + error.what());
  }
}

}  // namespace

int RunPackCommand(const CommandLine& line) {
  if (line.keepSize && line.keyFile.empty())
    throw WrongUse(
        "--no-compress needs --key: the container would be neither compressed nor "
        "enciphered");
  const auto key = KeyOf(line);
  std::ifstream plain = Open(line.file);
  Naming(line.file, [&] {
    MakeFile(line.output,
             [&](std::ostream& to) { filters::PackContainer(plain, to, !line.keepSize, key); });
  });
  return kDone;
}

int RunUnpackCommand(const CommandLine& line) {
  const auto key = KeyOf(line);
  std::ifstream packed = Open(line.file);
  const auto unpack = [&](std::ostream& to) { filters::UnpackContainer(packed, to, key); };
  Naming(line.file, [&] {
    if (!line.output.empty()) return MakeFile(line.output, unpack);
    unpack(std::cout);
    if (!std::cout.flush()) throw FileError("Cannot write standard output");
  });
  return kDone;
}

int RunKeyCommand(const CommandLine& line) {
  filters::Key::Generate().WriteNewFile(line.file);
  return kDone;
}

}  // namespace app

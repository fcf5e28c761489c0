// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/command_line.h"

#include <CLI/CLI.hpp>

#include "app/exit_status.h"

namespace app {

namespace {

/// Declares the grammar; the parsed values land in `line`.
class Grammar {
 public:
  explicit Grammar(CommandLine& line) : line_(line) {
    app_.name("sysdef");
    app_.set_version_flag("--version", "sysdef " SYSDEF_VERSION);
    app_.set_help_flag("--help", "Print this help and end");
    app_.require_subcommand(0, 1);
    app_.failure_message(CLI::FailureMessage::simple);
    app_.add_option("PROJECT", project_, "Open the project in the window");
    AddGlobal(app_);
    Declare();
  }

  ParsedCommandLine Parse(std::vector<std::string> arguments) {
    std::reverse(arguments.begin(), arguments.end());
    try {
      app_.parse(arguments);
    } catch (const CLI::Success& success) {
      std::ostringstream out;
      app_.exit(success, out, out);
      return {std::nullopt, out.str(), {}, kDone};
    } catch (const CLI::ParseError& error) {
      return {std::nullopt, {}, OneLine(error.what()) + "; see sysdef --help", kWrongUse};
    }
    return Finish();
  }

 private:
  static std::string OneLine(std::string text) {
    while (!text.empty() && text.back() == '\n') text.pop_back();
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
  }

  void AddGlobal(CLI::App& command) {
    command.add_flag("--non-interactive", line_.nonInteractive,
                     "Show no message box; questions count as No");
  }

  CLI::App& Verb(const char* name, const char* description, CommandLine::Verb verb) {
    CLI::App& command = *app_.add_subcommand(name, description);
    command.set_help_flag("--help", "Print this help and end");
    command.set_version_flag("--version", "sysdef " SYSDEF_VERSION);
    command.callback([this, verb] { line_.verb = verb; });
    AddGlobal(command);
    return command;
  }

  CLI::App& PageVerb(const char* name, const char* description, CommandLine::Verb verb) {
    CLI::App& command = Verb(name, description, verb);
    command.add_option("PROJECT", project_, "The project's file or folder")->required();
    return command;
  }

  void Declare() {
    CLI::App& show = PageVerb("show", "Print what the pages show", CommandLine::Verb::kShow);
    show.add_option("PAGE", line_.page, "One page; all without it");
    show.add_option("--explain", line_.explain, "Why the page treats a value as it does");
    CLI::App& out = PageVerb("export", "Print a page's data object", CommandLine::Verb::kExport);
    out.add_option("PAGE", line_.page, "The page")->required();
    CLI::App& in =
        PageVerb("import", "Read a page's data object and apply it", CommandLine::Verb::kImport);
    in.add_flag("--force", line_.force, "Store it although the page finds errors");
    in.add_option("PAGE", line_.page, "The page")->required();
    in.add_option("FILE", line_.file, "The file; standard input without it");
    CLI::App& script =
        PageVerb("script", "Drive the pages from JavaScript: script PROJECT FILE.js [ARG...]",
                 CommandLine::Verb::kScript);
    script.add_option("FILE.js", line_.file, "The script")->required();
    CLI::App& check = Verb("check", "Check every page's data", CommandLine::Verb::kCheck);
    check.add_option("PROJECT", line_.projects, "The projects' files or folders")->required();
    DeclareContainers();
  }

  CLI::App& FileVerb(const char* name, const char* description, CommandLine::Verb verb,
                     const char* file) {
    CLI::App& command = Verb(name, description, verb);
    command.add_option("FILE", line_.file, file)->required();
    return command;
  }

  void DeclareContainers() {
    CLI::App& pack = FileVerb("pack", "Put a support file into a container, compressed",
                              CommandLine::Verb::kPack, "The file");
    pack.add_option("OUTPUT", line_.output, "The container to write")->required();
    pack.add_option("--key", line_.keyFile, "Encipher it with the key in this file");
    pack.add_flag("--no-compress", line_.keepSize, "Encipher it only");
    CLI::App& unpack = FileVerb("unpack", "Take a container's content out",
                                CommandLine::Verb::kUnpack, "The container");
    unpack.add_option("OUTPUT", line_.output, "The file to write; standard output without it");
    unpack.add_option("--key", line_.keyFile, "The key file of an enciphered container");
    FileVerb("key", "Make a key file for pack and unpack", CommandLine::Verb::kKey,
             "The key file to make");
  }

  /// Commands that work on files, without a project.
  static bool IsOfFiles(CommandLine::Verb verb) {
    using enum CommandLine::Verb;
    return verb == kPack || verb == kUnpack || verb == kKey;
  }

  ParsedCommandLine Finish() {
    if (IsOfFiles(line_.verb)) return {line_, {}, {}, kDone};
    if (line_.verb != CommandLine::Verb::kCheck) line_.projects = {project_};
    if (line_.projects.front().empty()) {
      return {std::nullopt, {}, "PROJECT is required; see sysdef --help", kWrongUse};
    }
    if (line_.explain && line_.page.empty()) {
      return {std::nullopt, {}, "--explain needs a PAGE; see sysdef --help", kWrongUse};
    }
    return {line_, {}, {}, kDone};
  }

  CommandLine& line_;
  std::string project_;
  CLI::App app_{"Describes the illumination side of a projector."};
};

}  // namespace

ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  std::vector<std::string> ours = arguments;
  // What follows a script's file is the script's own, options included.
  const auto verb = std::find_if(ours.begin(), ours.end(),
                                 [](const std::string& word) { return !word.starts_with("-"); });
  std::vector<std::string> scripts;
  if (verb != ours.end() && *verb == "script") {
    auto end = verb + 1;
    for (int positionals = 0; end != ours.end() && positionals < 2; ++end) {
      if (!end->starts_with("-")) ++positionals;
    }
    scripts.assign(end, ours.end());
    ours.erase(end, ours.end());
  }
  ParsedCommandLine parsed = Grammar(line).Parse(ours);
  if (parsed.command) {
    auto& rest = parsed.command->arguments;
    rest.insert(rest.end(), scripts.begin(), scripts.end());
  }
  return parsed;
}

}  // namespace app

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>
#include <link.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;  // path below src/, text
using Names = std::vector<std::string>;

/// A folder of the house and what its files may include beside files of the same folder.
struct Room {
  std::string folder;
  bool qt;
  Names may;
};

const Names kBelowData = {"archive", "platform"};
const Names kHostCore = {"host/project", "host/calc", "host/text",
                         "host/data",    "archive",   "platform"};

/// The rooms, the most special folder first. "pages" stands for one subject's folder, since no
/// page knows another.
const std::vector<Room>& Rooms() {
  static const std::vector<Room> all = {
      {"platform", false, {}},
      {"archive", false, {"platform"}},
      {"host/data", false, kBelowData},
      {"host/project", false, kHostCore},
      {"host/calc", false, kHostCore},
      {"host/text", false, kHostCore},
      {"model", false, {"host/data", "archive", "platform"}},
      {"host/gui", true, {"host", "archive", "platform"}},
      {"automation", true, {"host", "platform"}},
      {"widgets/rules", false, kHostCore},
      {"widgets", true, {"host", "platform"}},
      {"framework", true, {"archive", "host", "platform"}},
      {"pages/*/rules",
       false,
       {"widgets/rules", "model", "host/project", "host/calc", "host/text", "host/data", "archive",
        "platform"}},
      {"pages/*", true, {"framework", "widgets", "host", "model", "archive", "platform"}},
      {"tool",
       true,
       {"pages", "framework", "widgets", "automation", "host", "model", "archive", "platform"}},
      {"app", true, {"automation", "host", "platform"}},
  };
  return all;
}

/// Libraries with one home each: header names that begin so, and who may include them.
const std::vector<std::pair<std::string, std::string>> kHomes = {
    {"libxml/", "platform/xml/"},    {"libxslt/", "platform/xml/"},
    {"libexslt/", "platform/xml/"},  {"zlib.h", "platform/filters/"},
    {"sodium", "platform/filters/"}, {"qcustomplot.h", "widgets/chart_plot"},
};

bool IsUnder(std::string_view path, std::string_view folder) {
  return path.starts_with(folder) && path.substr(folder.size()).starts_with('/');
}

/// The folder in `path` that the pattern names, its star filled in; empty when it does not match.
std::string MatchedFolder(const std::string& pattern, const std::string& path) {
  auto star = pattern.find('*');
  if (star == std::string::npos) return IsUnder(path, pattern) ? pattern : "";
  auto end = path.find('/', star);
  if (end == std::string::npos || path.compare(0, star, pattern, 0, star) != 0) return "";
  std::string folder = path.substr(0, end) + pattern.substr(star + 1);
  return IsUnder(path, folder) ? folder : "";
}

bool IsQt(const std::string& header) {
  static const std::regex qt(R"(Q[A-Z].*|Qt.*|q[a-z_]+\.h|ui_.*\.h|(.*/)?moc_.*|.*\.moc)");
  return std::regex_match(header, qt);
}

Names IncludesOf(const std::string& text) {
  static const std::regex line(R"(^[ \t]*#[ \t]*include[ \t]*[<"]([^>"]+)[>"])",
                               std::regex::ECMAScript | std::regex::multiline);
  Names found;
  for (std::sregex_iterator it(text.begin(), text.end(), line), end; it != end; ++it)
    found.push_back((*it)[1]);
  return found;
}

/// The path below src/ that an include means; empty for a header of a library.
std::string Resolved(const Files& files, const std::string& from, const std::string& header) {
  if (files.contains(header)) return header;
  auto beside = (fs::path(from).parent_path() / header).lexically_normal().string();
  return files.contains(beside) ? beside : "";
}

bool MayInclude(const Room& room, const std::string& own, const std::string& target) {
  return IsUnder(target, own) ||
         std::any_of(room.may.begin(), room.may.end(),
                     [&](const std::string& folder) { return IsUnder(target, folder); });
}

/// Why this include is wrong; empty when it is right.
std::string Fault(const Files& files, const Room& room, const std::string& own,
                  const std::string& from, const std::string& header) {
  for (const auto& [prefix, home] : kHomes)
    if (header.starts_with(prefix)) return from.starts_with(home) ? "" : "only for " + home;
  if (auto target = Resolved(files, from, header); !target.empty())
    return MayInclude(room, own, target) ? "" : "not for " + own;
  return IsQt(header) && !room.qt ? "no Qt in " + own : "";
}

/// Every wrong include, as "FILE: HEADER: REASON".
Names WrongIncludes(const Files& files) {
  Names faults;
  for (const auto& [path, text] : files) {
    std::string own;
    auto room = std::find_if(Rooms().begin(), Rooms().end(), [&, &from = path](const Room& r) {
      return !(own = MatchedFolder(r.folder, from)).empty();
    });
    if (room == Rooms().end()) {
      faults.push_back(path + ": stands on no floor");
      continue;
    }
    for (const auto& header : IncludesOf(text))
      if (auto why = Fault(files, *room, own, path, header); !why.empty())
        faults.push_back(path + ": " + header + ": " + why);
  }
  return faults;
}

Files ReadTree(const fs::path& root) {
  Files files;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    auto extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    std::ostringstream text;
    text << std::ifstream(entry.path()).rdbuf();
    files[fs::relative(entry.path(), root).generic_string()] = text.str();
  }
  return files;
}

std::string Including(const Names& headers) {
  std::string text = "#pragma once\n";
  for (const auto& header : headers) text += "#include \"" + header + "\"\n";
  return text;
}

TEST(IncludeFloors, NoArrowOfTheHousePointsUpOrSideways) {
  auto files = ReadTree(fs::path(SYSDEF_SOURCE_DIR) / "src");
  ASSERT_GT(files.size(), 20u) << "the sources were not found";
  EXPECT_THAT(WrongIncludes(files), testing::IsEmpty());
}

TEST(IncludeFloors, EveryKindOfWrongArrowIsFound) {
  Files files = {
      {"platform/xml/a.h", Including({"libxml/tree.h", "archive/a.h"})},
      {"platform/filters/a.h", Including({"zlib.h", "sodium.h", "libxml/tree.h"})},
      {"archive/a.h", "  #  include  <libxslt/xslt.h>\n#include <vector>\n"},
      {"host/data/a.h", Including({"host/gui/a.h", "archive/a.h"})},
      {"host/project/a.h", "#include <queue>\n#include <QString>\n#include <qglobal.h>\n"},
      {"host/gui/a.h", Including({"host/project/a.h", "model/a.h", "QtWidgets/QWidget"})},
      {"model/a.h", Including({"host/project/a.h", "host/data/a.h"})},
      {"framework/a.h", Including({"widgets/a.h", "host/gui/a.h"})},
      {"widgets/a.h", Including({"automation/a.h", "qcustomplot.h"})},
      {"widgets/chart_plot.cpp", Including({"qcustomplot.h", "widgets/rules/a.h"})},
      {"widgets/rules/a.h", Including({"widgets/a.h", "QKeyEvent", "platform/xml/a.h"})},
      {"automation/a.h", Including({"framework/a.h", "host/gui/a.h", "QJSEngine"})},
      {"pages/lamp/a.h", Including({"pages/wheel/a.h", "pages/lamp/rules/a.h", "tool/a.h"})},
      {"pages/lamp/rules/a.h", Including({"../a.h", "widgets/a.h", "ui_lamp.h", "model/a.h"})},
      {"pages/wheel/a.h", Including({"automation/a.h", "framework/a.h", "ui_wheel.h"})},
      {"tool/a.h", Including({"pages/lamp/a.h", "framework/a.h", "app/a.h"})},
      {"app/a.h", Including({"automation/a.h", "host/gui/a.h", "pages/lamp/a.h", "model/a.h",
                             "framework/a.h", "tool/a.h"})},
      {"attic/a.h", ""},
  };
  EXPECT_THAT(
      WrongIncludes(files),
      testing::UnorderedElementsAre(
          "platform/xml/a.h: archive/a.h: not for platform",
          "platform/filters/a.h: libxml/tree.h: only for platform/xml/",
          "archive/a.h: libxslt/xslt.h: only for platform/xml/",
          "host/data/a.h: host/gui/a.h: not for host/data",
          "host/project/a.h: QString: no Qt in host/project",
          "host/project/a.h: qglobal.h: no Qt in host/project",
          "host/gui/a.h: model/a.h: not for host/gui", "model/a.h: host/project/a.h: not for model",
          "framework/a.h: widgets/a.h: not for framework",
          "widgets/a.h: automation/a.h: not for widgets",
          "widgets/a.h: qcustomplot.h: only for widgets/chart_plot",
          "widgets/rules/a.h: widgets/a.h: not for widgets/rules",
          "widgets/rules/a.h: QKeyEvent: no Qt in widgets/rules",
          "automation/a.h: framework/a.h: not for automation",
          "pages/lamp/a.h: pages/wheel/a.h: not for pages/lamp",
          "pages/lamp/a.h: tool/a.h: not for pages/lamp",
          "pages/lamp/rules/a.h: ../a.h: not for pages/lamp/rules",
          "pages/lamp/rules/a.h: widgets/a.h: not for pages/lamp/rules",
          "pages/lamp/rules/a.h: ui_lamp.h: no Qt in pages/lamp/rules",
          "pages/wheel/a.h: automation/a.h: not for pages/wheel", "tool/a.h: app/a.h: not for tool",
          "app/a.h: pages/lamp/a.h: not for app", "app/a.h: model/a.h: not for app",
          "app/a.h: framework/a.h: not for app", "app/a.h: tool/a.h: not for app",
          "attic/a.h: stands on no floor"));
}

Names LoadedLibraries() {
  Names names;
  dl_iterate_phdr(
      [](dl_phdr_info* info, std::size_t, void* out) {
        static_cast<Names*>(out)->push_back(fs::path(info->dlpi_name).filename().string());
        return 0;
      },
      &names);
  return names;
}

// This program links all that is Qt-free, so what the loader brought in for it is what that code
// needs, directly or through another library.
TEST(IncludeFloors, TheLoaderBringsNoQtForTheCore) {
  auto libraries = LoadedLibraries();
  EXPECT_THAT(libraries, testing::Contains(testing::StartsWith("libsysdef_host_core.so")));
  EXPECT_THAT(libraries, testing::Each(testing::Not(testing::ContainsRegex("Qt|qcustomplot"))));
}

}  // namespace

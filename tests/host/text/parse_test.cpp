// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/text/parse.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::unique_ptr<std::istream> Stream(const std::string& text) {
  return std::make_unique<std::istringstream>(text);
}

std::vector<std::pair<std::size_t, std::string>> Lines(Parse& parse) {
  std::vector<std::pair<std::size_t, std::string>> lines;
  std::string_view line;
  for (bool more = parse.getFirstLine(line); more; more = parse.getNextLine(line)) {
    lines.emplace_back(parse.lineNumber(), line);
  }
  return lines;
}

using Line = std::pair<std::size_t, std::string>;

TEST(Parse, DeliversLinesWhateverTheirEnds) {
  Parse parse(Stream("\xEF\xBB\xBFone\r\ntwo\n\n \t\nlast"));
  EXPECT_THAT(Lines(parse), ElementsAre(Line(1, "one"), Line(2, "two"), Line(3, ""), Line(4, " \t"),
                                        Line(5, "last")));
  // A second reading starts over.
  parse.removeBlankLines();
  EXPECT_THAT(Lines(parse), ElementsAre(Line(1, "one"), Line(2, "two"), Line(5, "last")));
  Parse empty(Stream(""));
  EXPECT_THAT(Lines(empty), IsEmpty());
}

TEST(Parse, DropsCommentsAndTheLinesTheyLeaveBlank) {
  Parse parse(Stream("a # b\n# all\n  // all\nc/d //e\nhttp:/x\n/\n#"));
  parse.removeComments();
  parse.removeBlankLines();
  EXPECT_THAT(Lines(parse),
              ElementsAre(Line(1, "a "), Line(4, "c/d "), Line(5, "http:/x"), Line(6, "/")));
}

TEST(Parse, ReadsLinesThatAreNoUtf8AsWindows1252) {
  Parse parse(Stream("M\xC3\xBCnchen\nM\xFCnchen \x80\n"));
  EXPECT_THAT(Lines(parse),
              ElementsAre(Line(1, "M\xC3\xBCnchen"), Line(2, "M\xC3\xBCnchen \xE2\x82\xAC")));
}

TEST(Parse, LinesMayLieAcrossItsBuffer) {
  std::string text;
  std::vector<Line> expected;
  for (std::size_t i = 1; i <= 40; ++i) {
    expected.emplace_back(i, std::string(i * 1237, static_cast<char>('a' + i % 26)));
    text += expected.back().second + (i % 2 == 0 ? "\n" : "\r\n");
  }
  Parse parse(Stream(text));
  EXPECT_EQ(Lines(parse), expected);
}

TEST(Parse, StopsAtALineWithoutEnd) {
  Parse parse(Stream("ok\n" + std::string(3 * Parse::kMaxLineBytes, 'x')));
  EXPECT_THAT(Lines(parse), ElementsAre(Line(1, "ok")));
  EXPECT_THAT(parse.fault(), HasSubstr("line 2"));
}

TEST(Parse, SaysWhyAFileHasNoLines) {
  Parse missing(std::filesystem::path("no/such/file.lmp"));
  EXPECT_THAT(Lines(missing), IsEmpty());
  EXPECT_THAT(missing.fault(), HasSubstr("no/such/file.lmp"));
  Parse folder(std::filesystem::temp_directory_path());
  EXPECT_THAT(Lines(folder), IsEmpty());
  EXPECT_NE(folder.fault(), "");
}

TEST(Parse, TracesWhatItDelivers) {
  std::ostringstream trace;
  Parse parse(Stream("a#\n\nb"));
  parse.removeComments();
  parse.removeBlankLines();
  parse.trace(trace);
  Lines(parse);
  EXPECT_EQ(trace.str(), "a\nb\n");
}

TEST(Parse, SplitsALineAtItsFirstWord) {
  const struct {
    const char* line;
    const char* word;
    const char* rest;
  } cases[] = {{"450 0.8", "450", "0.8"},
               {"\t450\t0.8 \t", "450", "0.8"},
               {"450,0.8", "450", "0.8"},
               {"450 ; 0.8;", "450", "0.8;"},
               {"LAMP_NAME = Xenon 300W", "LAMP_NAME", "Xenon 300W"},
               {"LAMP_NAME", "LAMP_NAME", ""},
               {"LAMP_NAME =  ", "LAMP_NAME", ""},
               {",450 1", "", "450 1"},
               {"", "", ""},
               {"  ", "", ""}};
  for (const auto& [line, word, rest] : cases) {
    std::string_view first;
    std::string_view behind;
    Parse::stripFirstWord(line, first, behind);
    EXPECT_EQ(first, word) << line;
    EXPECT_EQ(behind, rest) << line;
  }
}

}  // namespace

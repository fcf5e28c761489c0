// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/spectrum_files.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "platform/text/number.h"

namespace {

namespace fs = std::filesystem;
using lamp_optics::LoadReport;

const fs::path kFiles = fs::path(SYSDEF_SOURCE_DIR) / "tests/pages/lamp_optics/rules/files";

std::string PointsText(const std::vector<SpectralPoint>& points) {
  std::string text;
  for (const SpectralPoint& point : points) {
    text += " " + std::to_string(point.Wavelength) + ":" + platform::ShortestText(point.Value);
  }
  return "points:" + text + "\n";
}

std::string ReportText(const LoadReport& report, bool accepted) {
  std::string text = accepted ? "accepted\n" : "not accepted\n";
  for (const std::string& line : ReportLines(report)) text += line + "\n";
  return text;
}

std::string Text(const lamp_optics::LampFile& file) {
  const SLampRecord& lamp = file.record;
  std::string apertures;
  for (const ApertureLumens& entry : lamp.LumensVsAperture) {
    apertures +=
        " " + platform::ShortestText(entry.Aperture) + ":" + platform::ShortestText(entry.Lumens);
  }
  return "name: " + lamp.Name + "\nlumens: " + platform::ShortestText(lamp.TotalLumens) +
         "\npower: " + platform::ShortestText(lamp.LampPower) +
         "\nflag: " + std::to_string(lamp.OpticsFlag) + "\napertures:" + apertures + "\n" +
         PointsText(lamp.Response) + ReportText(file.report, file.Accepted());
}

std::string Text(const lamp_optics::OpticsFile& file) {
  return "name: " + file.record.Name + "\n" + PointsText(file.record.Response) +
         ReportText(file.report, file.Accepted());
}

std::string Text(const lamp_optics::RecyclingFile& file) {
  return PointsText(file.points) + ReportText(file.report, file.Accepted());
}

/// What is in the file, as its reader took it.
std::string ReadText(const fs::path& file) {
  if (file.extension() == ".lmp") return Text(lamp_optics::ReadLampFile(file));
  if (file.extension() == ".opt") return Text(lamp_optics::ReadOpticsFile(file));
  return Text(lamp_optics::ReadRecyclingFile(file));
}

std::string Content(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

// Each file is named by what it holds and has beside it, as NAME.txt, what is to come of it. With
// SYSDEF_UPDATE_TESTS set the texts are written anew, to be read before they are committed.
TEST(SpectrumFiles, AreReadAsTheirTextSays) {
  int files = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(kFiles)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".lmp" && extension != ".opt" && extension != ".flt") continue;
    const fs::path expected = entry.path().string() + ".txt";
    if (std::getenv("SYSDEF_UPDATE_TESTS") != nullptr) {
      std::ofstream(expected, std::ios::binary) << ReadText(entry.path());
    }
    EXPECT_EQ(ReadText(entry.path()), Content(expected)) << entry.path().filename();
    ++files;
  }
  EXPECT_GE(files, 19);
}

TEST(SpectrumFiles, TheSampleProjectsAreReadWithoutAnOddity) {
  int files = 0;
  const fs::path samples = fs::path(SYSDEF_SOURCE_DIR) / "samples";
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(samples)) {
    const std::string folder = entry.path().parent_path().filename().string();
    if (folder != "Lamps" && folder != "Optics") continue;
    const LoadReport report = folder == "Lamps" ? lamp_optics::ReadLampFile(entry.path()).report
                                                : lamp_optics::ReadOpticsFile(entry.path()).report;
    EXPECT_THAT(ReportLines(report), testing::SizeIs(1)) << entry.path();
    EXPECT_GE(report.points, 100u) << entry.path();
    ++files;
  }
  EXPECT_GE(files, 4);
}

TEST(SpectrumFiles, AFileThatCannotBeReadHasNoPointsAndAReason) {
  const auto lamp = lamp_optics::ReadLampFile(kFiles / "nowhere.lmp");
  EXPECT_FALSE(lamp.Accepted());
  EXPECT_THAT(lamp.report.fault, testing::HasSubstr("nowhere.lmp"));
  EXPECT_FALSE(lamp_optics::ReadOpticsFile(kFiles).Accepted());
}

TEST(SpectrumFiles, OdditiesBeyondAHundredAreCounted) {
  std::string text = "RESPONSE_DATA_START\n";
  for (int i = 0; i < 1000; ++i) text += "x y\n";
  Parse lines(std::make_unique<std::istringstream>(text + "1 1\n"));
  const auto lamp = lamp_optics::ReadLamp(lines);
  EXPECT_EQ(lamp.report.oddities.size(), 101u);
  EXPECT_THAT(lamp.report.oddities.back().text, testing::HasSubstr("is missing")) << "kept";
  EXPECT_EQ(lamp.report.furtherOddities, 900u);
  EXPECT_EQ(ReportLines(lamp.report).back(), "and 900 more");
  EXPECT_EQ(lamp.record.Response.size(), 1u);
}

}  // namespace

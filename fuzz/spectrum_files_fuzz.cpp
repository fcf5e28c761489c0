// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>

#include "pages/lamp_optics/rules/name_limit.h"
#include "pages/lamp_optics/rules/spectra.h"
#include "pages/lamp_optics/rules/spectrum_files.h"
#include "platform/text/code_page.h"

// Any bytes may be opened as a lamp, optics or recycling file.

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

void CheckReport(const lamp_optics::LoadReport& report, const std::vector<SpectralPoint>& points) {
  Require(report.points == points.size());
  for (const std::string& line : ReportLines(report)) Require(platform::IsUtf8(line));
  const auto curve = lamp_optics::CurveOf(points);
  Require(lamp_optics::Product(curve, curve).size() == curve.size());
}

void CheckName(const std::string& name) {
  Require(lamp_optics::CharacterCount(name) <= lamp_optics::kMaxNameCharacters &&
          platform::IsUtf8(name));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const auto lines = [&] { return Parse(std::make_unique<std::istringstream>(text)); };
  Parse lampLines = lines();
  const auto lamp = lamp_optics::ReadLamp(lampLines);
  CheckReport(lamp.report, lamp.record.Response);
  CheckName(lamp.record.Name);
  Parse opticsLines = lines();
  const auto optics = lamp_optics::ReadOptics(opticsLines);
  CheckReport(optics.report, optics.record.Response);
  CheckName(optics.record.Name);
  Parse recyclingLines = lines();
  const auto recycling = lamp_optics::ReadRecycling(recyclingLines);
  CheckReport(recycling.report, recycling.points);
  return 0;
}

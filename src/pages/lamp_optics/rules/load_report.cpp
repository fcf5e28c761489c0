// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/load_report.h"

#include <algorithm>
#include <utility>

#include "platform/text/number.h"

namespace lamp_optics {
namespace {

std::string Summary(const LoadReport& report) {
  if (report.points == 0) return "no points";
  return std::to_string(report.points) + (report.points == 1 ? " point, " : " points, ") +
         std::to_string(report.lowest) + " to " + std::to_string(report.highest) + " nm, peak " +
         platform::GeneralText(report.peak.Value) + " at " +
         std::to_string(report.peak.Wavelength) + " nm";
}

}  // namespace

void LoadReport::Add(std::size_t line, std::string text) {
  if (oddities.size() < kMaxOddities) {
    oddities.push_back({line, std::move(text)});
  } else {
    ++furtherOddities;
  }
}

void LoadReport::AddAlways(std::size_t line, std::string text) {
  oddities.push_back({line, std::move(text)});
}

std::string Quoted(std::string_view text) {
  const std::size_t begin = std::min(text.find_first_not_of(" \t"), text.size());
  text = text.substr(begin, text.find_last_not_of(" \t") + 1 - begin);
  constexpr std::size_t kMaxQuoted = 40;
  std::size_t end = std::min(text.size(), kMaxQuoted);
  while (end < text.size() && end > 0 && (text[end] & 0xC0) == 0x80) --end;
  std::string quoted(text.substr(0, end));
  std::ranges::replace_if(
      quoted, [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
  return "\"" + quoted + (end < text.size() ? "...\"" : "\"");
}

std::vector<std::string> ReportLines(const LoadReport& report) {
  std::vector<std::string> lines{Summary(report)};
  if (!report.fault.empty()) lines.push_back(report.fault);
  for (const LoadReport::Oddity& oddity : report.oddities) {
    lines.push_back("line " + std::to_string(oddity.line) + ": " + oddity.text);
  }
  if (report.furtherOddities > 0) {
    lines.push_back("and " + std::to_string(report.furtherOddities) + " more");
  }
  return lines;
}

std::string LoadText(const std::string& fileName, bool accepted, const LoadReport& report) {
  std::string text = fileName + (accepted ? ": loaded" : ": not loaded");
  for (const std::string& line : ReportLines(report)) text += "\n" + line;
  return text;
}

}  // namespace lamp_optics

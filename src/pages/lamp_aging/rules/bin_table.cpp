// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/bin_table.h"

#include <iterator>

#include "platform/text/number.h"

namespace lamp_aging {
namespace {

std::string Padded(std::string text, std::size_t width) {
  return text.size() < width ? text.insert(0, width - text.size(), ' ') : text;
}

// "%5d  "
std::string NumberText(std::size_t number) { return Padded(std::to_string(number), 5) + "  "; }

// "%3d"
std::string LimitText(std::uint16_t limit) { return Padded(std::to_string(limit), 3); }

}  // namespace

const BinTable& DefaultFeedbackTable() {
  static const BinTable table{{0, 9, 1.12},   {9, 12, 1.36},  {12, 14, 1.56}, {14, 15, 1.68},
                              {15, 16, 1.76}, {16, 17, 1.84}, {17, 18, 1.92}, {18, 20, 2.04},
                              {20, 23, 2.21}, {23, 25, 2.48}, {25, 27, 2.61}, {27, 29, 2.72},
                              {29, 31, 2.79}, {31, 33, 2.86}, {33, 36, 2.9},  {36, 39, 3.1}};
  return table;
}

const BinTable& DefaultNoFeedbackTable() {
  static const BinTable table{{0, 0, 1.76}};
  return table;
}

BinTable::const_iterator BinAt(const BinTable& table, std::size_t number) {
  return std::next(table.begin(), static_cast<std::ptrdiff_t>(number));
}

std::size_t NumberOf(const BinTable& table, const Bin& bin) {
  return static_cast<std::size_t>(std::distance(table.begin(), table.lower_bound(bin)));
}

Bin MakeBin(int lower, int upper, double amplitude) noexcept {
  return {static_cast<std::uint16_t>(lower), static_cast<std::uint16_t>(upper), amplitude};
}

std::string AmplitudeText(double amplitude) { return platform::FixedText(amplitude, 3); }

std::vector<std::array<std::string, 4>> FeedbackRows(const BinTable& table) {
  std::vector<std::array<std::string, 4>> rows;
  for (const Bin& bin : table) {
    rows.push_back({NumberText(rows.size()), LimitText(bin.m_lowerBallastVal),
                    LimitText(bin.m_upperBallastVal), AmplitudeText(bin.m_avgPulseAmplitude)});
  }
  return rows;
}

std::vector<std::array<std::string, 2>> NoFeedbackRows(const BinTable& table) {
  std::vector<std::array<std::string, 2>> rows;
  for (const Bin& bin : table) {
    rows.push_back({NumberText(rows.size()), AmplitudeText(bin.m_avgPulseAmplitude)});
  }
  return rows;
}

}  // namespace lamp_aging

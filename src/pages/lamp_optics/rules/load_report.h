// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/data/spectral_point.h"

namespace lamp_optics {

/// What was found in a file and what was odd about it.
struct LoadReport {
  struct Oddity {
    std::size_t line;  ///< from 1
    std::string text;
  };
  /// Oddities that are kept with their text; further ones are counted.
  static constexpr std::size_t kMaxOddities = 100;

  std::size_t points = 0;
  int lowest = 0;  ///< nm; this and the next three mean something when there are points
  int highest = 0;
  SpectralPoint peak;  ///< the first one of the largest value
  std::vector<Oddity> oddities;
  std::size_t furtherOddities = 0;
  std::string fault;  ///< why the file was not read to its end; empty when it was

  void Add(std::size_t line, std::string text);
  /// The same for what a file has once at most: it is kept however many there are.
  void AddAlways(std::size_t line, std::string text);
};

/// A line of a file, and as it is split.
struct FileLine {
  std::size_t number;  ///< from 1
  std::string_view text;
  std::string_view first;
  std::string_view rest;
};

/// A piece of a file in quotes for a report: at most some 40 bytes of it, control characters as
/// "?", without blanks at its ends.
[[nodiscard]] std::string Quoted(std::string_view text);

/// The report for people: a line with points, range and peak, a line an oddity.
[[nodiscard]] std::vector<std::string> ReportLines(const LoadReport& report);

/// The same below a line that names the file and says whether it was taken.
[[nodiscard]] std::string LoadText(const std::string& fileName, bool accepted,
                                   const LoadReport& report);

}  // namespace lamp_optics

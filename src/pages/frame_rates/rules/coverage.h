// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "model/frame_rates_page_data.h"

namespace frame_rates {

/// A span of frame counts, both ends included.
struct CountSpan {
  std::uint32_t minCount = 0;
  std::uint32_t maxCount = 0;

  friend bool operator==(const CountSpan&, const CountSpan&) = default;
};

/// Counts that two bins of a table both hold.
struct SharedSpan {
  CountSpan span;
  std::size_t slowerBin = 0;  ///< places in the table
  std::size_t fasterBin = 0;

  friend bool operator==(const SharedSpan&, const SharedSpan&) = default;
};

/// Which source rates a table leaves out or serves twice. Bins whose ends are crossed serve
/// nothing.
struct Coverage {
  std::vector<CountSpan> unserved;  ///< of the counts from 1 on; by ascending count
  std::vector<SharedSpan> shared;   ///< by ascending count of their fast end
};

[[nodiscard]] Coverage CoverageOf(std::span<const FreqBinData> table);

/// The span in words, such as "31.50 - 47.50 Hz (frame counts 315790 to 476189)".
[[nodiscard]] std::string SpanText(const CountSpan& span);

}  // namespace frame_rates

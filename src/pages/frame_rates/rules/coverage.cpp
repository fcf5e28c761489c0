// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/coverage.h"

#include <algorithm>
#include <functional>

#include "pages/frame_rates/rules/rate_bin.h"
#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace frame_rates {
namespace {

// Places of the bins that serve something, by ascending count; of equal ones the narrow one first.
std::vector<std::size_t> FastestFirst(std::span<const FreqBinData> table) {
  std::vector<std::size_t> places;
  for (std::size_t place = 0; place < table.size(); ++place) {
    if (table[place].MinFrameCount <= table[place].MaxFrameCount) {
      places.push_back(place);
    }
  }
  std::ranges::stable_sort(places, {}, [&table](std::size_t place) {
    return std::pair(table[place].MinFrameCount, table[place].MaxFrameCount);
  });
  return places;
}

}  // namespace

Coverage CoverageOf(std::span<const FreqBinData> table) {
  Coverage coverage;
  std::uint32_t served = 0;  // the slowest count so far: 0 ticks are no rate
  std::size_t reaching = 0;  // the bin that holds it
  bool any = false;
  for (const std::size_t place : FastestFirst(table)) {
    const FreqBinData& bin = table[place];
    if (any && bin.MinFrameCount <= served) {
      coverage.shared.push_back(
          {{bin.MinFrameCount, std::min(bin.MaxFrameCount, served)}, place, reaching});
    } else if (bin.MinFrameCount > served && bin.MinFrameCount - served > 1) {
      coverage.unserved.push_back({served + 1, bin.MinFrameCount - 1});
    }
    if (!any || bin.MaxFrameCount > served) {
      served = bin.MaxFrameCount;
      reaching = place;
    }
    any = true;
  }
  if (served != kLastCount) {
    coverage.unserved.push_back({served + 1, kLastCount});
  }
  return coverage;
}

std::string SpanText(const CountSpan& span) {
  const auto rate = [](std::uint32_t count) {
    return platform::FixedText(kClockHz / std::max(count, 1U), 2);
  };
  if (span.minCount == span.maxCount) {
    return platform::Fill("%.2f Hz (frame count %d)",
                          {rate(span.maxCount), std::to_string(span.maxCount)});
  }
  return platform::Fill("%.2f - %.2f Hz (frame counts %d to %d)",
                        {rate(span.maxCount), rate(span.minCount), std::to_string(span.minCount),
                         std::to_string(span.maxCount)});
}

}  // namespace frame_rates

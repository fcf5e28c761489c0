// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/explanation.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "pages/frame_rates/rules/coverage.h"
#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace frame_rates {
namespace {

using platform::Fill;

std::string BinText(const RateBin& bin) { return SpanText({bin.minCount, bin.maxCount}); }

std::string RangeText(const RateTable& table, std::size_t range, std::uint32_t multiplier) {
  return Fill("sequence range %s with multiplier %d",
              {table.ranges[range].label, std::to_string(multiplier)});
}

std::string OriginText(const RateTable& table, const RateBin& bin) {
  switch (bin.origin) {
    case BinOrigin::kCandidate:
      return Fill("It is the candidate of %s.", {RangeText(table, bin.range, bin.multiplier)});
    case BinOrigin::kGap:
      return "It fills the gap between two candidates.";
    case BinOrigin::kBottom:
      return "It takes every rate below the slowest candidate.";
    case BinOrigin::kTop:
      return "It takes every rate above the fastest candidate.";
    case BinOrigin::kForced:
      break;
  }
  return "It is the forced bin, which every table holds as it is.";
}

std::string TrimText(const RateTable& table, const char* end, const EndTrim& trim) {
  switch (trim.by) {
    case EndTrim::By::kNothing:
      return "";
    case EndTrim::By::kNeighbour:
      return Fill(" Its %s end was trimmed by its neighbour, the candidate of %s.",
                  {end, RangeText(table, trim.range, trim.multiplier)});
    case EndTrim::By::kForcedBin:
      break;
  }
  return Fill(" Its %s end was trimmed by the forced bin.", {end});
}

std::string ServedText(const RateTable& table, const RateBin& bin) {
  const SequenceRange& range = table.ranges[bin.range];
  return Fill(
             "the bin %s, %s, by %s%s. ",
             {BinText(bin),
              bin.internalSync ? "on internal sync (LIV)" : "locked to the source (LEV)",
              RangeText(table, bin.range, bin.multiplier), range.enable3d ? ", 3D possible" : ""}) +
         OriginText(table, bin) + TrimText(table, "slow", bin.slowEnd) +
         TrimText(table, "fast", bin.fastEnd);
}

// Bins stand by descending count, so the neighbours of a hole are the last one with larger counts
// and the first one with smaller counts.
std::string HoleText(const RateTable& table, std::uint32_t count) {
  const auto faster = std::ranges::find_if(
      table.bins, [count](const RateBin& bin) { return bin.maxCount < count; });
  if (faster == table.bins.begin() || faster == table.bins.end()) {
    return "";
  }
  const RateBin& slower = *std::prev(faster);
  const char* reason = slower.origin == BinOrigin::kForced
                           ? " What reached across the forced bin kept only its slow part."
                           : "";
  return Fill(" It lies between the bins %s and %s.%s",
              {BinText(slower), BinText(*faster), reason});
}

std::string UncountableText(const std::string& rate) {
  return Fill("%s Hz has no frame count: rates are counted as 1 to %d ticks of a 15 MHz clock.",
              {rate, std::to_string(kLastCount)});
}

}  // namespace

std::string Explain(const RateTable& table, double rateHz) {
  const std::string rate = platform::ShortestText(rateHz);
  const std::optional<std::uint32_t> count = FrameCount(rateHz);
  if (!count) {
    return UncountableText(rate);
  }
  if (table.bins.empty()) {
    return Fill("No bin serves %s Hz: the selected sequence rates give no bins.", {rate});
  }
  std::string text;
  for (const RateBin& bin : table.bins) {
    if (bin.Holds(*count)) {
      text += text.empty()
                  ? Fill("%s Hz (frame count %d) is served by ", {rate, std::to_string(*count)})
                  : "\nIt is also served by ";
      text += ServedText(table, bin);
    }
  }
  if (text.empty()) {
    text = Fill("No bin serves %s Hz (frame count %d).", {rate, std::to_string(*count)}) +
           HoleText(table, *count);
  }
  return text;
}

std::string Explain(const RateTable& table, std::string_view typed) {
  const std::optional<double> rate = platform::ParseNumber(typed);
  return rate ? Explain(table, *rate)
              : Fill("\"%s\" is not a source rate in Hz.", {std::string(typed)});
}

}  // namespace frame_rates

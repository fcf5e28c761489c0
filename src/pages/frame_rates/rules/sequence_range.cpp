// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/sequence_range.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "host/project/ost_project.h"
#include "host/project/seq_range_keys.h"
#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace frame_rates {
namespace {

// Ranges are the ones of the first sequence group.
std::string Key(std::string_view pattern, int number) { return SeqRangeKey(pattern, 1, number); }

int SaturatedInt(long long value) {
  return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                                std::numeric_limits<int>::max()));
}

std::optional<SequenceRange> ReadRange(const OstProject& project, int index) {
  const int number = index + 1;
  SequenceRange range;
  range.index = index;
  range.baseRateHz = project.GetNumber(Key(PC_SEQRANGE_SEQ_BASEHZ, number), 0.0);
  if (range.baseRateHz == 0.0) {
    return std::nullopt;
  }
  range.label = project.GetText(Key(PC_SEQRANGE_SEQ_BASEHZ, number), "");
  range.minRateHz = project.GetNumber(Key(PC_SEQRANGE_SEQ_MINHZ, number), 0.0);
  range.maxRateHz = project.GetNumber(Key(PC_SEQRANGE_SEQ_MAXHZ, number), 0.0);
  range.maxMultiplier = project.GetInteger(Key(PC_SEQRANGE_SEQ_MAX_SEQ_MULTIPLIER, number), 0);
  range.enable3d = range.Holds(k3dHz);
  range.skippedMultipliers =
      ParseSkipList(project.GetText(Key(PC_SEQRANGE_SEQ_SKIPMULT, number), ""));
  return range;
}

}  // namespace

std::vector<SequenceRange> ReadSequenceRanges(const OstProject& project) {
  const int stated = project.GetInteger(std::string(PC_SEQRANGE_MAX_SEQ), kDefaultRangeCount);
  std::vector<SequenceRange> ranges;
  for (int index = 0; index < std::min(stated, kMaxRangeCount); ++index) {
    std::optional<SequenceRange> range = ReadRange(project, index);
    if (!range) {
      break;
    }
    ranges.push_back(*std::move(range));
  }
  return ranges;
}

std::vector<int> ParseSkipList(std::string_view text) {
  std::vector<int> multipliers;
  while (!text.empty()) {
    const std::size_t comma = std::min(text.find(','), text.size());
    multipliers.push_back(SaturatedInt(platform::LeadingInteger(text.substr(0, comma))));
    text.remove_prefix(std::min(comma + 1, text.size()));
  }
  return multipliers;
}

std::string ItemText(const SequenceRange& range) {
  return platform::Fill("%.2f Hz (%.2f - %.2f Hz)", {platform::FixedText(range.baseRateHz, 2),
                                                     platform::FixedText(range.minRateHz, 2),
                                                     platform::FixedText(range.maxRateHz, 2)});
}

}  // namespace frame_rates

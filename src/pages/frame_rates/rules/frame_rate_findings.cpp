// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/frame_rates/rules/frame_rate_findings.h"

#include <algorithm>
#include <string>

#include "host/project/ost_project.h"
#include "host/project/seq_range_keys.h"
#include "pages/frame_rates/rules/coverage.h"
#include "pages/frame_rates/rules/rate_table.h"
#include "pages/frame_rates/rules/selection.h"
#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace frame_rates {
namespace {

using platform::Fill;

constexpr const char* kSelectionField = "Seq Rates";
constexpr const char* kTableField = "Supported Frame Rates";

void AddError(Findings& findings, const char* rule, const char* field, std::string text) {
  findings.push_back({Severity::kError, rule, field, std::move(text)});
}

void AddWarning(Findings& findings, const char* rule, const char* field, std::string text) {
  findings.push_back({Severity::kWarning, rule, field, std::move(text)});
}

void CheckRangeRates(const SequenceRange& range, Findings& findings) {
  if (!(range.minRateHz > 0.0 && range.minRateHz <= range.maxRateHz) ||
      !FrameCount(range.minRateHz) || !FrameCount(range.maxRateHz)) {
    AddError(findings, "frame-rates.range-rates", kSelectionField,
             Fill("sequence range %s: %s is no range of rates", {range.label, ItemText(range)}));
  }
  if (range.maxMultiplier < 1 || range.maxMultiplier > kMaxMultiplier) {
    AddError(
        findings, "frame-rates.range-multiplier", kSelectionField,
        Fill("sequence range %s: the maximum multiplier %d is not from 1 to %d",
             {range.label, std::to_string(range.maxMultiplier), std::to_string(kMaxMultiplier)}));
  }
}

// A part of the skip list that is no number skips nothing, which its writer will not expect.
void CheckSkipText(const SequenceRange& range, const OstProject& project, Findings& findings) {
  const std::string text =
      project.GetText(SeqRangeKey(PC_SEQRANGE_SEQ_SKIPMULT, 1, range.index + 1), "");
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t comma = std::min(text.find(',', start), text.size());
    const std::string part = text.substr(start, comma - start);
    if (!platform::ParseInteger(part)) {
      AddWarning(findings, "frame-rates.range-skips", kSelectionField,
                 Fill("sequence range %s: \"%s\" in its skipped multipliers is no number",
                      {range.label, part}));
    }
    start = comma + 1;
  }
}

void CheckRangeCount(const OstProject& project, Findings& findings) {
  const int stated = project.GetInteger(std::string(PC_SEQRANGE_MAX_SEQ), kDefaultRangeCount);
  if (stated > kMaxRangeCount) {
    AddWarning(findings, "frame-rates.range-count", kSelectionField,
               Fill("the project states %d sequence ranges; only the first %d are offered",
                    {std::to_string(stated), std::to_string(kMaxRangeCount)}));
  }
}

void CheckSelection(const SysDefFrameRatesPageData& data, std::span<const SequenceRange> ranges,
                    Findings& findings) {
  for (const double rate : data.FrameRates) {
    if (std::ranges::none_of(ranges, [rate](const auto& r) { return r.baseRateHz == rate; })) {
      AddError(findings, "frame-rates.unknown-rate", kSelectionField,
               Fill("the selected rate %s Hz is the base rate of no sequence range",
                    {platform::ShortestText(rate)}));
    }
  }
  for (const SequenceRange& range : ranges) {
    if (!CanToggle(range) && !data.FrameRates.empty() && !IsSelected(range, data.FrameRates)) {
      AddWarning(findings, "frame-rates.default-range", kSelectionField,
                 Fill("sequence range %s holds 60 Hz and is not selected", {range.label}));
    }
  }
}

bool SameAsStored(const FreqBinData& one, const FreqBinData& other) {
  return one.MaxFrameCount == other.MaxFrameCount && one.MinFrameCount == other.MinFrameCount &&
         one.LookBinIndex == other.LookBinIndex &&
         one.SequenceMultiplier == other.SequenceMultiplier &&
         one.IsLockToInternalVsync == other.IsLockToInternalVsync && one.Enable3d == other.Enable3d;
}

void CheckStoredTable(const SysDefFrameRatesPageData& data, const RateTable& table,
                      Findings& findings) {
  const std::vector<FreqBinData> computed = ToFreqBins(table);
  if (std::ranges::equal(data.FreqBinTable, computed, SameAsStored)) {
    return;
  }
  const auto [stored, given] = std::ranges::mismatch(data.FreqBinTable, computed, SameAsStored);
  AddError(findings, "frame-rates.stale-table", kTableField,
           Fill("the stored table of %d bins is not the one of %d bins that the selection gives; "
                "the first difference is bin %d",
                {std::to_string(data.FreqBinTable.size()), std::to_string(computed.size()),
                 std::to_string(stored - data.FreqBinTable.begin())}));
}

void CheckCrossedEnds(std::span<const FreqBinData> table, Findings& findings) {
  for (const FreqBinData& bin : table) {
    if (bin.MinFrameCount > bin.MaxFrameCount) {
      AddWarning(findings, "frame-rates.crossed-bin", kTableField,
                 Fill("the bin with frame counts %d to %d serves nothing: its slowest rate is "
                      "above its fastest",
                      {std::to_string(bin.MinFrameCount), std::to_string(bin.MaxFrameCount)}));
    }
  }
}

void CheckCoverage(std::span<const FreqBinData> table, Findings& findings) {
  const Coverage coverage = CoverageOf(table);
  for (const CountSpan& span : coverage.unserved) {
    AddWarning(findings, "frame-rates.unserved", kTableField,
               Fill("no bin serves the source rates %s", {SpanText(span)}));
  }
  for (const SharedSpan& shared : coverage.shared) {
    AddWarning(findings, "frame-rates.shared", kTableField,
               Fill("two bins, %d and %d, share the source rates %s",
                    {std::to_string(std::min(shared.slowerBin, shared.fasterBin)),
                     std::to_string(std::max(shared.slowerBin, shared.fasterBin)),
                     SpanText(shared.span)}));
  }
}

}  // namespace

Findings Check(const SysDefFrameRatesPageData& data, const OstProject& project) {
  Findings findings;
  const std::vector<SequenceRange> ranges = ReadSequenceRanges(project);
  const std::vector<SequenceRange> selected = SelectedRanges(ranges, data.FrameRates);
  CheckRangeCount(project, findings);
  for (const SequenceRange& range : selected) {
    CheckRangeRates(range, findings);
    CheckSkipText(range, project, findings);
  }
  CheckSelection(data, ranges, findings);
  CheckStoredTable(data, ComputeRateTable(selected), findings);
  CheckCrossedEnds(data.FreqBinTable, findings);
  CheckCoverage(data.FreqBinTable, findings);
  return findings;
}

}  // namespace frame_rates

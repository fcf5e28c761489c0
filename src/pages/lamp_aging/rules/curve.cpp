// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/curve.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "pages/lamp_aging/rules/bin_rules.h"
#include "platform/text/fill.h"

namespace lamp_aging {

std::vector<CurveStep> CurveSteps(const BinTable& table) {
  std::vector<CurveStep> steps;
  std::size_t number = 0;
  for (const Bin& bin : table) {
    if (bin.m_lowerBallastVal <= bin.m_upperBallastVal) {
      steps.push_back(
          {number, bin.m_lowerBallastVal, bin.m_upperBallastVal, bin.m_avgPulseAmplitude});
    }
    ++number;
  }
  return steps;
}

std::vector<FeedbackSpan> UncoveredValues(const BinTable& table) {
  std::vector<FeedbackSpan> spans;
  int next = 0;  // the first value that is not yet known to be covered
  for (const CurveStep& step : CurveSteps(table)) {
    if (step.lower > next && next <= kMaxFeedbackValue) {
      spans.push_back({next, std::min(step.lower - 1, kMaxFeedbackValue)});
    }
    next = std::max(next, step.upper + 1);
  }
  if (next <= kMaxFeedbackValue) {
    spans.push_back({next, kMaxFeedbackValue});
  }
  return spans;
}

std::vector<SharedValues> FindSharedValues(const BinTable& table) {
  std::vector<SharedValues> shared;
  std::optional<CurveStep> furthest;
  for (const CurveStep& step : CurveSteps(table)) {
    if (furthest && step.lower <= furthest->upper) {
      shared.push_back(
          {furthest->bin, step.bin, {step.lower, std::min(step.upper, furthest->upper)}});
    }
    if (!furthest || step.upper >= furthest->upper) {
      furthest = step;
    }
  }
  return shared;
}

std::vector<CurveStep> Probe(const BinTable& table, int feedback) {
  std::vector<CurveStep> covering;
  std::ranges::copy_if(CurveSteps(table), std::back_inserter(covering),
                       [feedback](const CurveStep& step) {
                         return step.lower <= feedback && feedback <= step.upper;
                       });
  return covering;
}

std::string ProbeText(const BinTable& table, int feedback) {
  const std::vector<CurveStep> covering = Probe(table, feedback);
  if (covering.empty()) {
    return platform::Fill("No bin covers feedback value %d.", {std::to_string(feedback)});
  }
  std::string bins;
  for (const CurveStep& step : covering) {
    bins += (bins.empty() ? "" : "; ") +
            platform::Fill("Bin#%d, amplitude %.3f",
                           {std::to_string(step.bin), AmplitudeText(step.amplitude)});
  }
  return platform::Fill("Feedback value %d: %s.", {std::to_string(feedback), bins});
}

}  // namespace lamp_aging

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/lamp_aging_findings.h"

#include <algorithm>
#include <iterator>

#include "pages/lamp_aging/rules/bin_rules.h"
#include "pages/lamp_aging/rules/curve.h"
#include "pages/lamp_aging/rules/working_tables.h"
#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace lamp_aging {
namespace {

using platform::Fill;

constexpr const char* kField = "Bins";

/// Collects what is found in one group, each text headed by the group's name.
class GroupFindings {
 public:
  GroupFindings(Findings& findings, const char* family, double spinFactor)
      : findings_(findings),
        head_(Fill("%s, spin factor %s: ", {family, platform::ShortestText(spinFactor)})) {}

  void Error(const char* rule, const std::string& text) {
    findings_.push_back({Severity::kError, rule, kField, head_ + text});
  }
  void Warning(const char* rule, const std::string& text) {
    findings_.push_back({Severity::kWarning, rule, kField, head_ + text});
  }

 private:
  Findings& findings_;
  std::string head_;
};

std::string BinName(std::size_t number) { return Fill("Bin#%d", {std::to_string(number)}); }

std::string SpanText(const FeedbackSpan& span) {
  return span.lower == span.upper ? Fill("feedback value %d", {std::to_string(span.lower)})
                                  : Fill("feedback values %d to %d",
                                         {std::to_string(span.lower), std::to_string(span.upper)});
}

void CheckAmplitude(const Bin& bin, std::size_t number, const Limits& limits,
                    GroupFindings& findings) {
  const double amplitude = bin.m_avgPulseAmplitude;
  if (!(amplitude >= limits.minAmplitude && amplitude <= limits.maxAmplitude)) {
    findings.Error("lamp-aging.amplitude-range",
                   Fill("amplitude %g of %s is outside %.3f to %.3f",
                        {platform::GeneralText(amplitude), BinName(number),
                         AmplitudeText(limits.minAmplitude), AmplitudeText(limits.maxAmplitude)}));
  }
}

void CheckLimits(const Bin& bin, std::size_t number, GroupFindings& findings) {
  const int lower = bin.m_lowerBallastVal;
  const int upper = bin.m_upperBallastVal;
  if (upper < lower || upper > kMaxFeedbackValue) {
    findings.Error("lamp-aging.limits",
                   Fill("limits %d to %d of %s are no feedback values from 0 to %d",
                        {std::to_string(lower), std::to_string(upper), BinName(number),
                         std::to_string(kMaxFeedbackValue)}));
  }
}

void CheckOrder(const Bin& previous, const Bin& bin, std::size_t number, GroupFindings& findings) {
  if (bin.m_upperBallastVal < previous.m_upperBallastVal) {
    findings.Error("lamp-aging.order",
                   Fill("%s ends at %d, before the end of %s at %d",
                        {BinName(number), std::to_string(bin.m_upperBallastVal),
                         BinName(number - 1), std::to_string(previous.m_upperBallastVal)}));
  }
  if (!(previous.m_avgPulseAmplitude < bin.m_avgPulseAmplitude)) {
    findings.Error("lamp-aging.amplitude-order",
                   Fill("amplitude %.3f of %s is not above %.3f of %s",
                        {AmplitudeText(bin.m_avgPulseAmplitude), BinName(number),
                         AmplitudeText(previous.m_avgPulseAmplitude), BinName(number - 1)}));
  }
}

void CheckCoverage(const BinTable& table, GroupFindings& findings) {
  for (const FeedbackSpan& span : UncoveredValues(table)) {
    findings.Warning("lamp-aging.uncovered", "no bin covers " + SpanText(span));
  }
  for (const SharedValues& shared : FindSharedValues(table)) {
    if (!shared.IsTouch()) {
      findings.Warning(
          "lamp-aging.overlap",
          Fill("%s and %s both cover %s",
               {BinName(shared.lowerBin), BinName(shared.upperBin), SpanText(shared.span)}));
    }
  }
}

void CheckFeedbackTable(const BinTable& table, const Limits& limits, GroupFindings& findings) {
  if (table.size() > kMaxEntries) {
    findings.Error("lamp-aging.entries",
                   Fill("%d bins are more than %d",
                        {std::to_string(table.size()), std::to_string(kMaxEntries)}));
  }
  std::size_t number = 0;
  for (auto bin = table.begin(); bin != table.end(); ++bin, ++number) {
    CheckLimits(*bin, number, findings);
    CheckAmplitude(*bin, number, limits, findings);
    if (number > 0) {
      CheckOrder(*std::prev(bin), *bin, number, findings);
    }
  }
  CheckCoverage(table, findings);
}

void CheckNoFeedbackTable(const BinTable& table, const Limits& limits, GroupFindings& findings) {
  if (table.size() > 1) {
    findings.Warning(
        "lamp-aging.single-bin",
        Fill("%d bins, of which only the first can be changed", {std::to_string(table.size())}));
  }
  std::size_t number = 0;
  for (const Bin& bin : table) {
    CheckAmplitude(bin, number++, limits, findings);
  }
}

template <class CheckTable>
void CheckGroups(const SlrPulseAmpDataGroupVec& groups, const char* family,
                 const std::vector<SpinFactor>& factors, CheckTable checkTable,
                 Findings& findings) {
  for (const SlrPulseAmpDataGroup& group : groups) {
    GroupFindings ofGroup(findings, family, group.m_spinFactor);
    if (FindGroup(groups, group.m_spinFactor) != &group) {
      ofGroup.Warning("lamp-aging.repeated-group", "a second table of this spin factor");
    }
    if (std::ranges::find(factors, group.m_spinFactor, &SpinFactor::value) == factors.end()) {
      ofGroup.Warning("lamp-aging.unknown-spin-factor", "the project offers no such spin factor");
    }
    checkTable(group.m_SlrPulseAmpDataTable, ofGroup);
  }
}

}  // namespace

Findings Check(const LampAgingPageData& data, const OstProject& project) {
  Findings findings;
  if (data.m_ballast_type > kNoFeedback) {
    findings.push_back({Severity::kError, "lamp-aging.ballast-type", "Ballast Type",
                        Fill("ballast type %d is neither 0 (feedback) nor 1 (no feedback)",
                             {std::to_string(data.m_ballast_type)})});
  }
  const Limits limits = ReadLimits(project);
  std::vector<SpinFactor> factors;
  AppendSpinFactors(project, factors);
  CheckGroups(
      data.m_VecpulseAmpDataFeedBackGroup, "feedback", factors,
      [&](const BinTable& table, GroupFindings& ofGroup) {
        CheckFeedbackTable(table, limits, ofGroup);
      },
      findings);
  CheckGroups(
      data.m_VecpulseAmpDataNoFeedBackGroup, "no feedback", factors,
      [&](const BinTable& table, GroupFindings& ofGroup) {
        CheckNoFeedbackTable(table, limits, ofGroup);
      },
      findings);
  return findings;
}

}  // namespace lamp_aging

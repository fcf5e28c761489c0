// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/bin_rules.h"

#include <algorithm>
#include <iterator>

#include "host/project/ost_project.h"
#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace lamp_aging {
namespace {

using platform::Fill;
using Fault = std::optional<std::string>;

constexpr const char* kMaxAmplitudeKey = "projectclass.lamppulse.max_allowed_amplitude";
constexpr double kProposedAmplitude = 2.0;
constexpr double kProposedStep = 0.2;
constexpr int kProposedWidth = 8;

int Lower(const Bin& bin) noexcept { return bin.m_lowerBallastVal; }
int Upper(const Bin& bin) noexcept { return bin.m_upperBallastVal; }

std::string ToText(int value) { return std::to_string(value); }
std::string ToText(std::size_t value) { return std::to_string(value); }
std::string RatioText(double value) { return platform::FixedText(value, 3); }
double AsShown(double amplitude) { return platform::LeadingNumber(AmplitudeText(amplitude)); }

// Before the candidate joins: it must reach beyond the bin below and not beyond the one above.
Fault FaultAgainstPlace(const Bin& candidate, const BinTable& table, int overlap) {
  const auto next = table.lower_bound(candidate);
  if (next != table.begin()) {
    const int bound = Upper(*std::prev(next)) - overlap + 1;
    if (Upper(candidate) < bound) {
      return Fill(
          "Error, new ballast upper limit (=%d) is less than min allowable upper limit for "
          "previous bin (=%d), where the min overlap =%d",
          {ToText(Upper(candidate)), ToText(bound), ToText(overlap)});
    }
  }
  if (next == table.end()) {
    return std::nullopt;
  }
  if (Lower(*next) == Lower(candidate)) {
    return Fill("Error, new ballast lower limit (=%d) is = to lower limit for advacent bin (=%d)",
                {ToText(Lower(candidate)), ToText(Lower(*next))});
  }
  if (Upper(candidate) > Upper(*next)) {
    return Fill("Error, new ballast upper limit (=%d) exceeds the upper limit for next bin (=%d)",
                {ToText(Upper(candidate)), ToText(Upper(*next))});
  }
  return std::nullopt;
}

Fault FaultOfLimits(const Bin& bin) {
  if (Upper(bin) < Lower(bin)) {
    return Fill("Error, upper limit (%d) is less than lower limit (%d)",
                {ToText(Upper(bin)), ToText(Lower(bin))});
  }
  const int larger = std::max(Upper(bin), Lower(bin));
  if (larger > kMaxFeedbackValue) {
    return Fill("Error, lower or upper limit (%d) exceeds max allowed value of %d",
                {ToText(larger), ToText(kMaxFeedbackValue)});
  }
  return std::nullopt;
}

Fault FaultAgainstPrevious(const Bin& bin, std::size_t number, const Bin& previous, int overlap) {
  if (Lower(bin) > Upper(previous) - overlap) {
    return Fill(
        "Error, lower limit for Bin#%d does not overlap upper limit for Bin#%d by the "
        "required minimum amount (=%d)",
        {ToText(number), ToText(number - 1), ToText(overlap)});
  }
  if (!(previous.m_avgPulseAmplitude < bin.m_avgPulseAmplitude)) {
    return Fill(
        "Error, pulse amplitude ratio is not increasing; new ampl of Bin#%d must be "
        "greaterthan bin#%d ampl = %.3f",
        {ToText(number), ToText(number - 1), RatioText(previous.m_avgPulseAmplitude)});
  }
  return std::nullopt;
}

Fault FaultAgainstNext(const Bin& bin, std::size_t number, const Bin& next, int overlap) {
  if (Upper(bin) < Lower(next) + overlap) {
    return Fill(
        "Error, upper limit for Bin#%d does not overlap lower limit for Bin#%d by the "
        "required minimum amount (=%d)",
        {ToText(number), ToText(number + 1), ToText(overlap)});
  }
  if (!(bin.m_avgPulseAmplitude < next.m_avgPulseAmplitude)) {
    return Fill(
        "Error, pulse amplitude ratio is not increasing; new ampl of Bin#%d must beless "
        "than bin#%d ampl = %.3f",
        {ToText(number), ToText(number + 1), RatioText(next.m_avgPulseAmplitude)});
  }
  return std::nullopt;
}

// With the candidate in its place, against the bins beside it.
Fault FaultAgainstNeighbours(const Bin& candidate, const BinTable& table, int overlap) {
  const std::size_t number = NumberOf(table, candidate);
  const auto next = table.lower_bound(candidate);
  if (number > 0) {
    if (Fault fault = FaultAgainstPrevious(candidate, number, *std::prev(next), overlap)) {
      return fault;
    }
  }
  return next == table.end() ? std::nullopt : FaultAgainstNext(candidate, number, *next, overlap);
}

}  // namespace

Limits ReadLimits(const OstProject& project) {
  Limits limits;
  limits.maxAmplitude = project.GetNumber(kMaxAmplitudeKey, kDefaultMaxAmplitude);
  return limits;
}

std::string TooManyEntriesText() {
  return Fill("Error, max# of allowed entries = %d", {ToText(kMaxEntries)});
}

Fault AmplitudeFault(std::size_t number, double amplitude, const Limits& limits) {
  if (amplitude > limits.maxAmplitude) {
    return Fill(
        "Error, pulse amplitude ratio for Bin#%d exceeds maximum allowed "
        "amplitude(=%.3f)",
        {ToText(number), RatioText(limits.maxAmplitude)});
  }
  if (amplitude < limits.minAmplitude) {
    return Fill(
        "Error, pulse amplitude ratio for Bin#%d is below minimum allowed "
        "amplitude(=%.3f)",
        {ToText(number), RatioText(limits.minAmplitude)});
  }
  return std::nullopt;
}

Fault BinFault(const Bin& candidate, const BinTable& table, const Limits& limits) {
  if (Fault fault = FaultAgainstPlace(candidate, table, limits.minOverlap)) {
    return fault;
  }
  if (Fault fault = FaultOfLimits(candidate)) {
    return fault;
  }
  if (Fault fault = FaultAgainstNeighbours(candidate, table, limits.minOverlap)) {
    return fault;
  }
  if (table.size() + 1 > kMaxEntries) {
    return TooManyEntriesText();
  }
  return AmplitudeFault(NumberOf(table, candidate), candidate.m_avgPulseAmplitude, limits);
}

Bin ProposeBin(const BinTable& table, std::optional<std::size_t> selectedRow,
               const Limits& limits) {
  const int overlap = limits.minOverlap;
  if (table.empty()) {
    return MakeBin(0, 2 * overlap, kProposedAmplitude);
  }
  const Bin& base = *(selectedRow ? BinAt(table, *selectedRow) : std::prev(table.end()));
  const int lower = selectedRow ? std::max(Upper(base) - overlap, 0) : Upper(base);
  const int width = selectedRow ? 2 * overlap : kProposedWidth;
  // The base is what the row shows, rounded as it is shown; so is the sum, whose last binary digits
  // the dialog would hide and store.
  const double raised = AsShown(AsShown(base.m_avgPulseAmplitude) + kProposedStep);
  return MakeBin(lower, std::min(lower + width, kMaxFeedbackValue),
                 std::min(raised, limits.maxAmplitude));
}

Fault AddBin(BinTable& table, const Bin& bin, const Limits& limits) {
  Fault fault = BinFault(bin, table, limits);
  if (!fault) {
    table.insert(bin);
  }
  return fault;
}

Fault ChangeBin(BinTable& table, std::size_t number, const Bin& bin, const Limits& limits) {
  BinTable changed = table;
  changed.erase(BinAt(changed, number));
  Fault fault = AddBin(changed, bin, limits);
  if (!fault) {
    table = std::move(changed);
  }
  return fault;
}

Fault ChangeOnlyBin(BinTable& table, const Bin& bin, const Limits& limits) {
  Fault fault = AmplitudeFault(0, bin.m_avgPulseAmplitude, limits);
  if (!fault) {
    if (!table.empty()) {
      table.erase(table.begin());
    }
    table.insert(bin);
  }
  return fault;
}

bool DeleteBin(BinTable& table, std::size_t number) {
  if (table.size() <= 1 || number >= table.size()) {
    return false;
  }
  table.erase(BinAt(table, number));
  return true;
}

}  // namespace lamp_aging

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/spin_factors.h"

#include <algorithm>

#include "host/project/ost_project.h"
#include "host/project/seq_range_keys.h"
#include "platform/text/number.h"

namespace lamp_aging {
namespace {

constexpr int kGroups = 4;
constexpr const char* kAbsent = "Not Found";

void AppendGroup(const OstProject& project, int group, std::vector<SpinFactor>& factors) {
  for (int number = 1;; ++number) {
    std::string text = project.GetText(SeqRangeKey(PC_SEQRANGE_SPINFACTOR, group, number), kAbsent);
    const double value = SpinFactorOf(text);
    if (text == kAbsent || std::ranges::find(factors, value, &SpinFactor::value) != factors.end()) {
      return;
    }
    factors.push_back({value, std::move(text)});
  }
}

}  // namespace

double SpinFactorOf(std::string_view text) noexcept { return platform::LeadingNumber(text); }

void AppendSpinFactors(const OstProject& project, std::vector<SpinFactor>& factors) {
  for (int group = 1; group <= kGroups; ++group) {
    AppendGroup(project, group, factors);
  }
}

}  // namespace lamp_aging

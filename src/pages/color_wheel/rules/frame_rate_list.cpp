// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/rules/frame_rate_list.h"

#include <algorithm>

#include "host/text/leading_number.h"
#include "platform/text/number.h"

namespace color_wheel {
namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";
constexpr std::string_view kNumberCharacters = "0123456789.";
/// A default rate from here on is taken for a doubled one and not offered.
constexpr double kDefaultRateBound = 90.0;
constexpr double kIndependentSpin = 4.0;

std::string EntryText(double rate) { return "  " + platform::FixedText(rate, 2); }

/// The number that the entry reads as; where it shows a supported rate, all digits of that one.
std::optional<double> RateOf(std::string_view entry, std::span<const double> supported) {
  const auto shown = std::ranges::find(supported, entry, EntryText);
  return shown != supported.end() ? *shown : leading_number::EnteredNumber(entry);
}

}  // namespace

std::vector<double> ParseFrameRates(std::string_view text) {
  std::vector<double> rates;
  if (text == kNoSupportedRates) return rates;
  while (true) {
    text.remove_prefix(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
    const std::size_t length = std::min(text.find_first_not_of(kNumberCharacters), text.size());
    if (length == 0) return rates;
    rates.push_back(platform::LeadingNumber(text.substr(0, length)));
    text.remove_prefix(length);
  }
}

FrameRateList MakeFrameRateList(std::span<const double> supported, double defaultRate,
                                double nominalRate) {
  FrameRateList list;
  if (supported.empty()) {
    if (defaultRate > 0 && defaultRate < kDefaultRateBound) {
      list.entries.push_back(platform::FixedText(defaultRate, 2));
      list.selected = 0;
      list.storeAtOnce = defaultRate;
    }
    return list;
  }
  list.enabled = true;
  for (const double rate : supported) {
    if (rate == nominalRate && !list.selected) list.selected = list.entries.size();
    list.entries.push_back(EntryText(rate));
  }
  return list;
}

bool SelectFrameRate(std::string_view entry, std::span<const double> supported,
                     ColorWheelData& wheel) {
  const std::optional<double> rate = RateOf(entry, supported);
  if (!rate || *rate == wheel.NominalFrameRate) return false;
  wheel.NominalFrameRate = *rate;
  if (wheel.SpinValue != kIndependentSpin) wheel.SecondFrameRate = *rate;
  return true;
}

}  // namespace color_wheel

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illuminators/rules/pulse_timing.h"

#include <algorithm>
#include <cmath>

#include "pages/illuminators/rules/illuminator_rows.h"
#include "platform/text/fill.h"
#include "platform/text/number.h"

namespace illuminators {
namespace {

/// The light stays on for this share of the sum of the three times before the drive goes off.
constexpr double kLitShare = 0.6;

bool IsShowable(double time) { return time >= kMinTimeUs && time <= kMaxTimeUs; }

}  // namespace

std::optional<PulseTiming> TimingOf(const IllumCharacteristics& illuminator) {
  const double a = illuminator.EnableDelay, b = illuminator.DisableDelay,
               c = illuminator.FallMargin;
  if (!IsShowable(a) || !IsShowable(b) || !IsShowable(c)) {
    return std::nullopt;
  }
  const double sum = a + b + c;
  PulseTiming timing;
  timing.lightOn = a;
  timing.driveOff = a + (sum > 0 ? kLitShare * sum : 1.0);
  timing.lightFalls = timing.driveOff + b;
  timing.dark = timing.lightFalls + c;
  return timing;
}

std::string TimingWords(const IllumCharacteristics& illuminator) {
  const std::string name = TimingTitle(illuminator);
  if (!TimingOf(illuminator)) {
    return name + ": a time is out of range and cannot be drawn";
  }
  return platform::Fill(
      "%s: the light is on %s after the drive signal goes on (A); it begins to fall %s after the "
      "drive signal goes off (B) and is dark %s later (C)",
      {name, TimeText(illuminator.EnableDelay), TimeText(illuminator.DisableDelay),
       TimeText(illuminator.FallMargin)});
}

std::string TimingTitle(const IllumCharacteristics& illuminator) {
  return std::string(IllumCharacteristics::GetStrForIllumType(illuminator.Type));
}

std::string TimeText(double microseconds) {
  return platform::FixedText(microseconds, kTimeDecimals) + " usecs";
}

std::string GeneralTimeText(double microseconds) {
  return platform::GeneralText(microseconds) + " usecs";
}

double ScaleBarLength(double longest) {
  const double decade = std::pow(10.0, std::floor(std::log10(longest)));
  double length = decade;
  for (const double times : {2.0, 5.0, 10.0}) {
    if (times * decade <= longest) length = times * decade;
  }
  return length;
}

}  // namespace illuminators

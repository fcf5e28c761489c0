// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>

#include "host/data/illum_characteristics.h"

namespace illuminators {

/// One pulse of an illuminator as its diagram shows it: moments in microseconds from the one at
/// which the drive signal goes on. How long the signal stays on is chosen for the picture.
struct PulseTiming {
  double lightOn = 0;     ///< A, the enable delay
  double driveOff = 0;    ///< always behind lightOn
  double lightFalls = 0;  ///< B, the disable delay, behind driveOff
  double dark = 0;        ///< C, the fall margin, behind lightFalls
};

/// Nothing when one of the times is not within what the page takes.
[[nodiscard]] std::optional<PulseTiming> TimingOf(const IllumCharacteristics& illuminator);

/// The same in words.
[[nodiscard]] std::string TimingWords(const IllumCharacteristics& illuminator);

/// The picture's title: the illuminator's name.
[[nodiscard]] std::string TimingTitle(const IllumCharacteristics& illuminator);

/// A time with its unit, with the digits that the page's fields show, and with those it needs.
[[nodiscard]] std::string TimeText(double microseconds);
[[nodiscard]] std::string GeneralTimeText(double microseconds);

/// The length of a bar that shows the scale of a picture: the longest of 1, 2 and 5 times a power
/// of ten that is not above `longest`, which is more than 0.
[[nodiscard]] double ScaleBarLength(double longest);

}  // namespace illuminators

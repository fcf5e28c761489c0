// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <span>
#include <string>

#include "host/calc/cw_seg.h"
#include "host/calc/seq_timeline.h"

class IlluminationConfigurationData;

namespace SequenceTiming_Common {

/// The timeline of one sequence: as many frames as ZelUtils::GetNumFramesForSpinFactor says, each
/// whole wheel revolution in them holding the parts of wheel_layout::LayOut. One revolution lasts
/// 1e6 / (rateHz x spinFactor) microseconds. The timeline begins where `before` ends.
///
/// Without segments, and where rate or spin factor is not above 0 or asks for more revolutions
/// than an index can number, the timeline holds no segments.
///
/// The unnamed arguments belong to suites whose sequences can be shifted and cut; this host times
/// whole sequences from their start, and its callers pass the neutral values 0, 0.0, the rate
/// again, false and 0. An illumination configuration changes no timing; null for none.
[[nodiscard]] SequenceTiming::SeqTimeline GetSeqTimeline(
    std::span<const CWSeg> wheel, double spinFactor, double rateHz, double spokeSizeDegrees,
    int /*shift*/, double /*shiftDegrees*/, double /*shiftRateHz*/, bool /*cut*/, bool is3D,
    int /*cutIndex*/, const SequenceTiming::SeqTimeline& before, const std::string& groupType,
    const IlluminationConfigurationData* illumination = nullptr);

}  // namespace SequenceTiming_Common

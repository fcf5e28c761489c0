// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/sequence_timing_common.h"

#include <cmath>
#include <limits>
#include <map>
#include <vector>

#include "host/calc/wheel_layout.h"
#include "host/calc/zel_utils.h"

namespace SequenceTiming_Common {
namespace {

using SequenceTiming::SeqSegment;
using SequenceTiming::SeqTimeline;

constexpr double kMicroseconds = 1e6;
constexpr double kTurn = 360.0;
/// A product of frames and spin factor this close below a whole number is that number.
constexpr double kWholeTolerance = 1e-6;
constexpr double kMaxRevolutions = std::numeric_limits<std::uint16_t>::max();

/// The segments of revolution 0, timed from its first part.
std::vector<SeqSegment> OneRevolution(const wheel_layout::Layout& layout, double revolutionUs) {
  std::vector<SeqSegment> segments;
  std::map<std::string, std::uint16_t> seen;
  for (const wheel_layout::Part& part : layout.parts) {
    const double startDegrees = part.startDegrees - layout.parts.front().startDegrees;
    segments.push_back({part.name, 0, seen[part.name]++, startDegrees / kTurn * revolutionUs,
                        part.sweepDegrees / kTurn * revolutionUs});
  }
  return segments;
}

}  // namespace

SeqTimeline GetSeqTimeline(std::span<const CWSeg> wheel, double spinFactor, double rateHz,
                           double spokeSizeDegrees, int, double, double, bool, bool is3D, int,
                           const SeqTimeline& before, const std::string& groupType,
                           const IlluminationConfigurationData*) {
  const int frames = ZelUtils::GetNumFramesForSpinFactor(spinFactor, is3D, false, groupType);
  const double revolutions = std::floor(frames * spinFactor + kWholeTolerance);
  if (!(rateHz > 0) || !(revolutions >= 1) || revolutions > kMaxRevolutions) {
    return SeqTimeline(before.EndUs(), 0.0);
  }
  SeqTimeline timeline(before.EndUs(), frames * kMicroseconds / rateHz);
  const double revolutionUs = kMicroseconds / (rateHz * spinFactor);
  const std::vector<SeqSegment> pattern =
      OneRevolution(wheel_layout::LayOut(wheel, spokeSizeDegrees), revolutionUs);
  timeline.Segments().reserve(pattern.size() * static_cast<std::size_t>(revolutions));
  for (std::uint16_t i = 0; i < static_cast<std::uint16_t>(revolutions); ++i) {
    for (SeqSegment segment : pattern) {
      segment.index1 = i;
      segment.startUs += timeline.StartUs() + i * revolutionUs;
      timeline.Segments().push_back(std::move(segment));
    }
  }
  return timeline;
}

}  // namespace SequenceTiming_Common

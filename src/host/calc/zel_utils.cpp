// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/calc/zel_utils.h"

#include <cmath>

namespace ZelUtils {
namespace {

constexpr int kMaxFrames = 64;
constexpr double kWholeTolerance = 1e-6;

int FramesToWholeTurns(double spinFactor) {
  for (int frames = 1; frames <= kMaxFrames; ++frames) {
    const double turns = frames * spinFactor;
    if (std::abs(turns - std::round(turns)) <= kWholeTolerance) return frames;
  }
  return 1;
}

}  // namespace

int GetNumFramesForSpinFactor(double spinFactor, bool is3D, bool, const std::string&) {
  const int frames = FramesToWholeTurns(spinFactor);
  return is3D && frames % 2 != 0 ? 2 * frames : frames;
}

}  // namespace ZelUtils

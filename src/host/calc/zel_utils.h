// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

namespace ZelUtils {

/// The frames that one sequence covers: the smallest number F, up to 64, for which F x spinFactor
/// is within 1e-6 of a whole number of wheel revolutions; 1 when there is none. A 3D sequence,
/// whose frames alternate between the eyes, covers twice an odd number. The third argument and the
/// group type change nothing on this host.
[[nodiscard]] int GetNumFramesForSpinFactor(double spinFactor, bool is3D, bool /*unused*/,
                                            const std::string& groupType);

}  // namespace ZelUtils

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstdint>
#include <span>

#include "pages/lamp_aging/rules/bin_table.h"
#include "pages/lamp_aging/rules/spin_factors.h"

namespace lamp_aging {

inline constexpr std::uint32_t kSendsFeedback = 0;
inline constexpr std::uint32_t kNoFeedback = 1;

/// The tables of the spin factor that is being edited.
struct WorkingTables {
  BinTable feedback;
  BinTable noFeedback;
};

/// The first group of this spin factor, or null.
[[nodiscard]] const SlrPulseAmpDataGroup* FindGroup(const SlrPulseAmpDataGroupVec& groups,
                                                    double spinFactor) noexcept;

/// Takes the spin factor's tables out of the data. Without a group the feedback table becomes empty
/// and the other stays as it is; of several groups without feedback the last counts.
void LoadTables(const LampAgingPageData& data, double spinFactor, WorkingTables& tables);

/// The table to show for the ballast type: an empty one becomes the default first.
const BinTable& ShownTable(WorkingTables& tables, std::uint32_t ballastType);

/// Writes the ballast type and the tables that are not empty back into the data, as groups of this
/// spin factor, when it is one of `factors`. True when a table in the data changed or a group was
/// made.
[[nodiscard]] bool StoreTables(const WorkingTables& tables, std::uint32_t ballastType,
                               double spinFactor, std::span<const SpinFactor> factors,
                               LampAgingPageData& data);

}  // namespace lamp_aging

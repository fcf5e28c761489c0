// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/data/lamp_optics_data.h"

/// The rules of the lamp and optics libraries and their lists.
namespace lamp_optics {

inline constexpr double kMaxTotalLumens = 500000.0;
inline constexpr double kMinContrast = 1.0;
inline constexpr double kMaxContrast = 1000000.0;

[[nodiscard]] constexpr bool IsTotalLumens(double lumens) noexcept {
  return lumens >= 0 && lumens <= kMaxTotalLumens;
}

/// The entries of a library's list: a name, or "Unnamed", for each record in use, in their order.
[[nodiscard]] std::vector<std::string> ListEntries(const LampData& data);
[[nodiscard]] std::vector<std::string> ListEntries(const OpticsData& data);

/// The current record where it is in use, else null.
[[nodiscard]] const SLampRecord* CurrentLamp(const LampData& data);
[[nodiscard]] const SOpticsRecord* CurrentOptics(const OpticsData& data);

/// The list entry of the current record, and the place of the record that an entry stands for; -1
/// for none.
[[nodiscard]] int CurrentEntry(const LampData& data);
[[nodiscard]] int CurrentEntry(const OpticsData& data);
[[nodiscard]] int PlaceOfEntry(const LampData& data, int entry);
[[nodiscard]] int PlaceOfEntry(const OpticsData& data, int entry);

/// Whether there is room for one more.
[[nodiscard]] bool HasRoom(const LampData& data);
[[nodiscard]] bool HasRoom(const OpticsData& data);

/// Puts the record behind those in use and makes it current. False when there is no room.
[[nodiscard]] bool AddLamp(LampData& data, SLampRecord& record);
[[nodiscard]] bool AddOptics(OpticsData& data, SOpticsRecord& record);

/// Removes the current record, if there is one; the one before it becomes current, so none behind
/// the first. True when a record was removed.
[[nodiscard]] bool RemoveCurrent(LampData& data);
[[nodiscard]] bool RemoveCurrent(OpticsData& data);

struct Renamed {
  bool changed = false;
  std::optional<std::string> refusal;  ///< another record has the name
};
/// Gives the current record a name, cut at kMaxNameCharacters. Free records take part in the
/// comparison, so an empty name is refused while there is one, and so is one with characters that
/// cannot be stored. Without a current record nothing happens.
[[nodiscard]] Renamed RenameCurrent(LampData& data, std::string_view typed);
[[nodiscard]] Renamed RenameCurrent(OpticsData& data, std::string_view typed);

/// Takes the points as the lamp's recycling response, also when there are none. False for none.
[[nodiscard]] bool TakeRecycling(SLampRecord& lamp, std::vector<SpectralPoint> points);

}  // namespace lamp_optics

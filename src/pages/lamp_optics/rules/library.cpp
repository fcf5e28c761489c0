// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/library.h"

#include <algorithm>
#include <utility>

#include "pages/lamp_optics/rules/name_limit.h"

namespace lamp_optics {
namespace {

template <class Records>
std::vector<std::string> EntriesOf(const Records& records) {
  std::vector<std::string> entries;
  for (const auto& record : records) {
    if (record.InUse()) entries.push_back(record.Name.empty() ? "Unnamed" : record.Name);
  }
  return entries;
}

template <class Records>
auto* RecordAt(Records& records, int index) {
  const bool used = index >= 0 && index < static_cast<int>(records.size()) &&
                    records[static_cast<std::size_t>(index)].InUse();
  return used ? &records[static_cast<std::size_t>(index)] : nullptr;
}

template <class Records>
int EntryOf(const Records& records, int place) {
  if (!RecordAt(records, place)) return -1;
  const auto isUsed = [](const auto& record) { return record.InUse(); };
  return static_cast<int>(std::count_if(records.begin(), records.begin() + place, isUsed));
}

template <class Records>
int PlaceOf(const Records& records, int entry) {
  for (int place = 0; place < static_cast<int>(records.size()); ++place) {
    if (RecordAt(records, place) && EntryOf(records, place) == entry) return place;
  }
  return -1;
}

template <class Library>
bool Remove(Library& library, int& current) {
  if (!library.RemoveItem(current)) return false;
  --current;
  return true;
}

template <class Records>
Renamed Rename(Records& records, int current, std::string_view typed, const char* kind) {
  auto* record = RecordAt(records, current);
  std::string name(CutName(typed));
  if (!record || record->Name == name) return {};
  using Record = typename Records::value_type;
  if (std::ranges::find(records, name, &Record::Name) != records.end()) {
    return {false, std::string(kind) + ":\"" + std::string(typed) + "\" already exists"};
  }
  if (DropUnstorable(name)) return {false, "The name has characters that cannot be stored"};
  record->Name = name;
  return {true, std::nullopt};
}

}  // namespace

std::vector<std::string> ListEntries(const LampData& data) { return EntriesOf(data.Lamps); }
std::vector<std::string> ListEntries(const OpticsData& data) { return EntriesOf(data.Optics); }

const SLampRecord* CurrentLamp(const LampData& data) {
  return RecordAt(data.Lamps, data.CurrentLamp);
}
const SOpticsRecord* CurrentOptics(const OpticsData& data) {
  return RecordAt(data.Optics, data.CurrentOptics);
}

int CurrentEntry(const LampData& data) { return EntryOf(data.Lamps, data.CurrentLamp); }
int CurrentEntry(const OpticsData& data) { return EntryOf(data.Optics, data.CurrentOptics); }
int PlaceOfEntry(const LampData& data, int entry) { return PlaceOf(data.Lamps, entry); }
int PlaceOfEntry(const OpticsData& data, int entry) { return PlaceOf(data.Optics, entry); }

bool HasRoom(const LampData& data) { return CountInUse(data.Lamps) < LampData::kCapacity; }
bool HasRoom(const OpticsData& data) { return CountInUse(data.Optics) < OpticsData::kCapacity; }

bool AddLamp(LampData& data, SLampRecord& record) {
  return data.InsertLampResponse(CountInUse(data.Lamps), record);
}
bool AddOptics(OpticsData& data, SOpticsRecord& record) {
  return data.InsertOpticsResponse(CountInUse(data.Optics), record);
}

bool RemoveCurrent(LampData& data) { return Remove(data, data.CurrentLamp); }
bool RemoveCurrent(OpticsData& data) { return Remove(data, data.CurrentOptics); }

Renamed RenameCurrent(LampData& data, std::string_view typed) {
  return Rename(data.Lamps, data.CurrentLamp, typed, "Lamp");
}
Renamed RenameCurrent(OpticsData& data, std::string_view typed) {
  return Rename(data.Optics, data.CurrentOptics, typed, "Optics");
}

bool TakeRecycling(SLampRecord& lamp, std::vector<SpectralPoint> points) {
  lamp.Recycling = std::move(points);
  return !lamp.Recycling.empty();
}

}  // namespace lamp_optics

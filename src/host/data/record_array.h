// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

/// A library of a few records in a fixed array: those in use stand first, the others are empty. A
/// record has InUse().
template <class Record, std::size_t Capacity>
using RecordArray = std::array<Record, Capacity>;

template <class Record, std::size_t Capacity>
[[nodiscard]] int CountInUse(const RecordArray<Record, Capacity>& records) {
  return static_cast<int>(
      std::count_if(records.begin(), records.end(), [](const Record& r) { return r.InUse(); }));
}

/// Moves the record in at the index; those from there on go one place up, as far as the next free
/// place. Without one behind it the index is made free from the other side, those before it going
/// one place down. False, with nothing moved, when the record is empty, the library is full, or the
/// index is negative or above the number of records in use.
template <class Record, std::size_t Capacity>
bool InsertRecord(RecordArray<Record, Capacity>& records, int index, Record& record) {
  const int count = CountInUse(records);
  if (!record.InUse() || count == static_cast<int>(Capacity) || index < 0 || index > count) {
    return false;
  }
  const auto place = records.begin() + index;
  const auto isFree = [](const Record& each) { return !each.InUse(); };
  const auto above = std::find_if(place, records.end(), isFree);
  if (above != records.end()) {
    std::move_backward(place, above, above + 1);
  } else {
    const auto below = std::find_if(records.begin(), place, isFree);
    std::move(below + 1, place + 1, below);
  }
  *place = std::exchange(record, Record());
  return true;
}

/// Empties the place; the records behind it go one place down. False when there is no such place.
template <class Record, std::size_t Capacity>
bool RemoveRecord(RecordArray<Record, Capacity>& records, int index) {
  if (index < 0 || index >= static_cast<int>(Capacity)) return false;
  std::move(records.begin() + index + 1, records.end(), records.begin() + index);
  records.back() = Record();
  return true;
}
